#pragma once

#include <algorithm>
#include <cmath>

namespace tocca::ui {

/// The strength at the peak of a pulse, 0…1.
inline constexpr double kGlowPeak = 0.85;

/// Units: points.
inline constexpr double kGlowRadius = 280;
inline constexpr double kEdgeLineHeight = 1.5;

/// Where the glow of a key at stereo position `pan` has its centre, in widths of the screen: 0.15…0.85.
/// Errors: none. A pan that is not a number counts as far right. Threads: any.
[[nodiscard]] inline double glowRatio(float pan) noexcept
{
    constexpr double kWidest = 0.6;
    constexpr double kReach = 0.35;
    const double limited = pan < kWidest ? std::max(static_cast<double>(pan), -kWidest) : kWidest;
    return 0.5 + kReach * limited / kWidest;
}

/// How much of its two colours the glow has at a point.
struct GlowShares {
    double primary = 0;
    double secondary = 0;
};

/// The glow at full strength, `beside` its centre and `above` the screen's edge, in a strip of `height`.
///
/// Three stops from the centre to the radius: the primary colour, the secondary one at 0.4, nothing. Instead of ending at the top
/// of the strip the light has died away there.
/// Units: points.
/// Threads: any.
[[nodiscard]] inline GlowShares glowSharesAt(double beside, double above, double height) noexcept
{
    constexpr double kSecondary = 0.4;
    const double out = std::hypot(beside, above) / kGlowRadius * 2; // 1 at the middle stop
    const double left = std::clamp(1 - above / height, 0.0, 1.0);
    const double rise = left * left * (3 - 2 * left);
    return {.primary = std::max(1 - out, 0.0) * rise,
            .secondary = std::max(1 - std::abs(1 - out), 0.0) * kSecondary * rise};
}

/// Where the line along the edge begins, is brightest and ends, in widths of the screen.
struct EdgeLineStops {
    double begin = 0;
    double peak = 0;
    double end = 0;
};

/// The line of a glow at `ratio`; it does not leave the screen. Threads: any.
[[nodiscard]] inline EdgeLineStops edgeLineStops(double ratio) noexcept
{
    constexpr double kHalf = 0.25;
    return {std::max(ratio - kHalf, 0.0), ratio, std::min(ratio + kHalf, 1.0)};
}

/// How strong the line of a glow at `ratio` is at `position`, both in widths of the screen. Threads: any.
[[nodiscard]] inline double edgeLineShareAt(double position, double ratio) noexcept
{
    constexpr double kBrightest = 0.9;
    const EdgeLineStops stops = edgeLineStops(ratio);
    const double share = position < stops.peak ? (position - stops.begin) / (stops.peak - stops.begin)
                                               : (stops.end - position) / (stops.end - stops.peak);
    return kBrightest * std::max(share, 0.0);
}

} // namespace tocca::ui
