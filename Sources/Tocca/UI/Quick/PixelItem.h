#pragma once

#include <QImage>
#include <QQuickItem>

namespace tocca::ui {

/// An item with a picture that is worked out pixel by pixel once and kept, so that moving and fading it cost no painting and no effect
/// of the graphics card is needed.
class PixelItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PixelItem(QQuickItem* parent = nullptr);

protected:
    /// The picture for the item's size. Units: `scale` in pixels a point; the image has as many pixels as the item covers, or none
    /// when there is nothing to show.
    [[nodiscard]] virtual QImage draw(const QSize& pixels, qreal scale) const = 0;

    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
};

} // namespace tocca::ui
