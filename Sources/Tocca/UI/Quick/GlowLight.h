#pragma once

#include "UI/Quick/PixelItem.h"

#include <QColor>

namespace tocca::ui {

/// Light that lies on the middle of the item's lower edge: `primary` at the source, a ring of `secondary`, nothing beyond.
///
/// The picture is that of full strength; the item's opacity dims it.
class GlowLight : public tocca::ui::PixelItem { // the QML compiler knows a base by its whole name only
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor primary MEMBER primary_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(QColor secondary MEMBER secondary_ NOTIFY drawingChanged FINAL)

public:
    explicit GlowLight(QQuickItem* parent = nullptr);

    Q_SIGNAL void drawingChanged();

protected:
    [[nodiscard]] QImage draw(const QSize& pixels, qreal scale) const override;

private:
    QColor primary_{Qt::white};
    QColor secondary_{Qt::white};
};

} // namespace tocca::ui
