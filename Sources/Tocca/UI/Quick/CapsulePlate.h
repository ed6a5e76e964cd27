#pragma once

#include "UI/Quick/PixelItem.h"

#include <QColor>

namespace tocca::ui {

/// A capsule that fills the item, outlined inside its edge from one colour at the top left to another at the bottom right.
///
/// Its drop shadow, 5 points below with a blur of 10, stays inside the item and is gone at the item's edges.
/// Units: `lineWidth` in points; `shadow` is the shadow's opacity.
class CapsulePlate : public tocca::ui::PixelItem { // the QML compiler knows a base by its whole name only
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(QColor lineFrom MEMBER lineFrom_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(QColor lineTo MEMBER lineTo_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(qreal lineWidth MEMBER lineWidth_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(qreal shadow MEMBER shadow_ NOTIFY drawingChanged FINAL)

public:
    explicit CapsulePlate(QQuickItem* parent = nullptr);

    Q_SIGNAL void drawingChanged();

protected:
    [[nodiscard]] QImage draw(const QSize& pixels, qreal scale) const override;

private:
    QColor color_{Qt::black};
    QColor lineFrom_{Qt::white};
    QColor lineTo_{Qt::white};
    qreal lineWidth_ = 1;
    qreal shadow_ = 0;
};

} // namespace tocca::ui
