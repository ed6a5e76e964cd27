#pragma once

#include "Audio/SoundProfile.h"
#include "Support/Realtime.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace tocca::keyboard {

/// Drops an event that repeats the same key and direction too soon: contacts chatter.
///
/// Units: seconds on one monotonic clock. Threads: the one that delivers input. Real-time: `accept` is wait-free.
class Debouncer {
public:
    static constexpr double kPause = 0.035;

    /// Whether the event counts. A dropped event leaves no trace, so the pause is measured from the last accepted one.
    [[nodiscard]] bool accept(std::uint16_t keyCode, audio::KeyStrokeAction action,
                              double now) noexcept REALTIME
    {
        const unsigned direction = action == audio::KeyStrokeAction::up ? 0x8000U : 0U;
        double& last = lastEventTime_[static_cast<std::uint16_t>(keyCode ^ direction)];
        if (now - last < kPause) {
            return false;
        }
        last = now;
        return true;
    }

private:
    static constexpr std::size_t kKeys = std::size_t{std::numeric_limits<std::uint16_t>::max()} + 1;

    std::vector<double> lastEventTime_ = std::vector<double>(kKeys, -std::numeric_limits<double>::infinity());
};

} // namespace tocca::keyboard
