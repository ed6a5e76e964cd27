#include "UI/Quick/CapsulePlate.h"

#include "UI/Quick/Light.h"

#include <QPointF>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace tocca::ui {

namespace {

constexpr double kShadowDrop = 5;
constexpr double kShadowBlur = 10;

/// How far `point` lies outside a capsule that fills `size`; negative inside.
double distance(const QPointF& point, const QSizeF& size)
{
    const double radius = std::min(size.width(), size.height()) / 2;
    const double x = std::abs(point.x() - size.width() / 2) - (size.width() / 2 - radius);
    const double y = std::abs(point.y() - size.height() / 2) - (size.height() / 2 - radius);
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) - radius;
}

/// 0 at both ends of `length`, 1 where the shadow's blur is away from them.
double softly(double position, double length)
{
    const double inside = std::clamp(std::min(position, length - position) / kShadowBlur, 0.0, 1.0);
    return inside * inside * (3 - 2 * inside);
}

double shadowAt(const QPointF& point, const QSizeF& size)
{
    // A blur reaches as far as its radius, so the spread of its bell is half of that.
    const double fall =
        std::erfc(distance(point - QPointF(0, kShadowDrop), size) * M_SQRT2 / kShadowBlur) / 2;
    const double margin = softly(point.x(), size.width()) * softly(point.y(), size.height());
    return fall * margin;
}

} // namespace

CapsulePlate::CapsulePlate(QQuickItem* parent)
    : PixelItem(parent)
{
    connect(this, &CapsulePlate::drawingChanged, this, &CapsulePlate::update);
}

QImage CapsulePlate::draw(const QSize& pixels, qreal scale) const
{
    const QSizeF size(pixels.width() / scale, pixels.height() / scale);
    const double diagonal = size.width() * size.width() + size.height() * size.height();
    const Light fill = Light::of(color_);
    const Light from = Light::of(lineFrom_);
    const Light to = Light::of(lineTo_);
    const auto coverage = [scale](double outside) { return std::clamp(0.5 - outside * scale, 0.0, 1.0); };

    return picture(pixels, [&](int column, int row) {
        const QPointF point((column + 0.5) / scale, (row + 0.5) / scale);
        const double outside = distance(point, size);
        const double along = (point.x() * size.width() + point.y() * size.height()) / diagonal;
        const Light stroke =
            (from * (1 - along) + to * along) * (coverage(outside) - coverage(outside + lineWidth_));
        const Light body = fill * coverage(outside + lineWidth_ / 2);
        const Light shade{.alpha = shadow_ * shadowAt(point, size)};
        return stroke.over(body.over(shade)).pixel();
    });
}

} // namespace tocca::ui
