#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tocca::platform::linux {

/// The best estimate of when an event happened.
///
/// The server stamps with whole milliseconds of the same clock, so the event happened less than a millisecond after its stamp
/// and before it arrived here; the earlier of the two limits keeps strokes as far apart as they were typed, also when this
/// thread was late for some of them.
/// Units: `arrival` is in seconds on the platform's clock, `stamp` in milliseconds modulo 2³².
/// Errors: a stamp a second or more from the arrival is on another clock and ignored.
[[nodiscard]] inline double timeOfEvent(double arrival, std::uint32_t stamp) noexcept
{
    constexpr double kMillisecond = 0.001;
    constexpr double kPlausible = 1.0;
    const auto arrivalInMilliseconds = static_cast<std::int64_t>(std::floor(arrival / kMillisecond));
    // The difference of the low halves has the right sign across the wrap.
    const auto age = static_cast<std::int32_t>(static_cast<std::uint32_t>(arrivalInMilliseconds) - stamp);
    const double stamped = static_cast<double>(arrivalInMilliseconds - age) * kMillisecond;
    if (std::abs(arrival - stamped) >= kPlausible) {
        return arrival;
    }
    return std::min(arrival, stamped + kMillisecond);
}

} // namespace tocca::platform::linux
