#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tocca::ui {

inline constexpr int kWaveformBars = 6;

/// The typing speed above which the read-out stands out. Units: words per minute.
inline constexpr std::int64_t kFastTyping = 80;

/// The height of bar `index`, 0…5, of the HUD's waveform after a pulse of loudness `energy`.
///
/// Units: points, 3 to just under 17 while expanded, 2 otherwise.
/// Threads: any.
[[nodiscard]] inline double waveformBarHeight(int index, double energy, bool isExpanded) noexcept
{
    constexpr double kCollapsed = 2;
    constexpr double kLeast = 3;
    constexpr double kStep = 3.5; // from bar to bar at full energy
    constexpr double kFold = 14;  // where a bar starts from the bottom again
    return isExpanded ? std::max(std::fmod((index + 1) * kStep * energy, kFold) + kLeast, kLeast)
                      : kCollapsed;
}

} // namespace tocca::ui
