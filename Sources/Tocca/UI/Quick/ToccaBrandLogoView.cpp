#include "UI/Quick/ToccaBrandLogoView.h"

#include "UI/Quick/UiProperty.h"
#include "UI/StudioTheme.h"

#include <QPainter>
#include <QPainterPath>

namespace tocca::ui {
namespace {

constexpr qreal kDesign = 512; // side of the space the mark is drawn in
constexpr platform::Colour kCyan{6, 182, 212};

QColor toColour(platform::Colour colour, qreal opacity = 1)
{
    QColor result = toQColor(colour);
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

QPen roundPen(const QColor& colour, qreal width)
{
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawSquare(QPainter& painter, qreal share, qreal corner, qreal line)
{
    const qreal side = share * kDesign - line;
    const QRectF square((kDesign - side) / 2, (kDesign - side) / 2, side, side);
    painter.drawRoundedRect(square, corner * kDesign, corner * kDesign);
}

/// A T whose bar ends in the spread of a sound.
void drawMonogram(QPainter& painter)
{
    const QColor amber = toColour(StudioTheme::amberAccent);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(roundPen(amber, 44));
    painter.drawLine(QPointF(160, 186), QPointF(300, 186));
    painter.drawLine(QPointF(230, 186), QPointF(230, 352));

    painter.setPen(roundPen(toColour(kCyan), 30));
    QPainterPath wave;
    wave.arcMoveTo(QRectF(176, 196, 180, 180), 52);
    wave.arcTo(QRectF(176, 196, 180, 180), 52, -104);
    painter.drawPath(wave);

    painter.setPen(Qt::NoPen);
    painter.setBrush(amber);
    painter.drawEllipse(QPointF(352, 186), 22, 22);
}

} // namespace

ToccaBrandLogoView::ToccaBrandLogoView(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(size_, size_);
}

void ToccaBrandLogoView::setSize(qreal size)
{
    if (size != size_) {
        size_ = size;
        setImplicitSize(size, size);
        update();
        Q_EMIT sizeChanged();
    }
}

void ToccaBrandLogoView::paint(QPainter* painter)
{
    const qreal point = kDesign / size_;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->scale(1 / point, 1 / point);

    painter->setPen(QPen(toColour(StudioTheme::cardBorder), point));
    painter->setBrush(toColour(StudioTheme::cardBg));
    drawSquare(*painter, 1, 0.22, point);
    painter->setBrush(toColour(StudioTheme::amberAccent, 0.04));
    drawSquare(*painter, 1, 0.22, point);

    painter->setPen(QPen(toColour(StudioTheme::amberAccent, 0.25), 0.8 * point));
    painter->setBrush(Qt::NoBrush);
    drawSquare(*painter, 0.78, 0.16, 0.8 * point);
    drawMonogram(*painter);
}

} // namespace tocca::ui
