#pragma once

#include <algorithm>

namespace tocca::ui {

/// The strength at the peak of a pulse, 0…1.
inline constexpr double kGlowPeak = 0.85;

/// Where the glow of a key at stereo position `pan` has its centre, in widths of the screen: 0.15…0.85.
/// Errors: none. A pan that is not a number counts as far right. Threads: any.
[[nodiscard]] inline double glowRatio(float pan) noexcept
{
    constexpr double kWidest = 0.6;
    constexpr double kReach = 0.35;
    const double limited = pan < kWidest ? std::max(static_cast<double>(pan), -kWidest) : kWidest;
    return 0.5 + kReach * limited / kWidest;
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

} // namespace tocca::ui
