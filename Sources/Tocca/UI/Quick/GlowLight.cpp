#include "UI/Quick/GlowLight.h"

#include "UI/Quick/Light.h"
#include "UI/Underglow/Glow.h"

#include <array>

namespace tocca::ui {

namespace {

/// Breaks up the steps of the faint ends. Source: Bayer's 4 × 4 matrix.
double thresholdAt(int column, int row)
{
    constexpr std::array<int, 16> kOrder{0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
    return (kOrder.at(static_cast<std::size_t>(row % 4 * 4 + column % 4)) + 0.5) / 16;
}

} // namespace

GlowLight::GlowLight(QQuickItem* parent)
    : PixelItem(parent)
{
    setImplicitWidth(2 * kGlowRadius);
    connect(this, &GlowLight::drawingChanged, this, &GlowLight::update);
}

QImage GlowLight::draw(const QSize& pixels, qreal scale) const
{
    const Light primary = Light::of(primary_);
    const Light secondary = Light::of(secondary_);
    return picture(pixels, [&](int column, int row) {
        const double above = (pixels.height() - row - 0.5) / scale;
        const double beside = (column + 0.5 - pixels.width() / 2.0) / scale;
        const GlowShares shares = glowSharesAt(beside, above, pixels.height() / scale);
        return (primary * shares.primary + secondary * shares.secondary).pixel(thresholdAt(column, row));
    });
}

} // namespace tocca::ui
