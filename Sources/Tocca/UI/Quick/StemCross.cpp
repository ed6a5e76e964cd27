#include "UI/Quick/StemCross.h"

#include <QPainter>
#include <QPainterPath>

namespace tocca::ui {

StemCross::StemCross(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(16, 16);
    setAntialiasing(true);
    connect(this, &StemCross::drawingChanged, this, [this] { update(); });
}

void StemCross::paint(QPainter* painter)
{
    constexpr qreal kLength = 12;
    constexpr qreal kThickness = 3.2;
    constexpr qreal kCorner = 1;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(-kLength / 2, -kThickness / 2, kLength, kThickness, kCorner, kCorner);
    path.addRoundedRect(-kThickness / 2, -kLength / 2, kThickness, kLength, kCorner, kCorner);
    painter->translate(boundingRect().center());
    painter->fillPath(path, color_);
}

} // namespace tocca::ui
