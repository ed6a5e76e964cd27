#include "UI/Quick/SwitchStemShape.h"

#include <QPainter>

namespace tocca::ui {

SwitchStemShape::SwitchStemShape(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(14, 14);
    connect(this, &SwitchStemShape::drawingChanged, this, [this] { update(); });
}

QPainterPath SwitchStemShape::path(const QRectF& in)
{
    constexpr qreal kCorner = 2;
    constexpr qreal kReach = 0.28;     // half a bar's length, in widths
    constexpr qreal kHalfWidth = 0.06; // half a bar's width, in widths
    const qreal w = in.width();
    const QPointF centre = in.center();

    QPainterPath path;
    path.addRoundedRect(in, kCorner, kCorner);
    path.addRect(centre.x() - kReach * w, centre.y() - kHalfWidth * w, 2 * kReach * w, 2 * kHalfWidth * w);
    path.addRect(centre.x() - kHalfWidth * w, centre.y() - kReach * w, 2 * kHalfWidth * w, 2 * kReach * w);
    return path;
}

void SwitchStemShape::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color_, lineWidth_));
    // Half of the line lies outside the path, and the item's image ends at its edge.
    const qreal inset = lineWidth_ / 2;
    painter->drawPath(path(boundingRect().adjusted(inset, inset, -inset, -inset)));
}

} // namespace tocca::ui
