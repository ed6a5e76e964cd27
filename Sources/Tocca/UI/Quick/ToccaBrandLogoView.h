#pragma once

#include <QQuickPaintedItem>

namespace tocca::ui {

/// The brand mark: a keycap badge with the monogram. Units: `size` in points, the side of its square.
class ToccaBrandLogoView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged FINAL)

public:
    explicit ToccaBrandLogoView(QQuickItem* parent = nullptr);

    [[nodiscard]] qreal size() const { return size_; }

    void setSize(qreal size);

    void paint(QPainter* painter) override;

    Q_SIGNAL void sizeChanged();

private:
    qreal size_ = 38;
};

} // namespace tocca::ui
