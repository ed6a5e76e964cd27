#pragma once

#include "Support/Realtime.h"
#include "Support/SpscRing.h"

#include <cstdint>

namespace tocca::keyboard {

/// Counts presses over the last five seconds and calls five of them a word.
///
/// Units: seconds on one monotonic clock; words per minute.
/// Threads: `add`: the one that delivers input. `prune`: main. `wordsPerMinute`: either.
/// Real-time: `add` and `wordsPerMinute` are wait-free.
/// Errors: while `kCapacity` presses wait to be pruned, further ones are not counted.
class TypingSpeed {
public:
    static constexpr double kWindow = 5.0;
    static constexpr std::size_t kCapacity = 8192;

    void add(double time) noexcept REALTIME { recentStrokeTimestamps_.push(time); }

    /// Forgets presses more than `kWindow` before `now`.
    void prune(double now) noexcept
    {
        while (recentStrokeTimestamps_.front() != nullptr &&
               now - *recentStrokeTimestamps_.front() > kWindow) {
            recentStrokeTimestamps_.pop();
        }
    }

    /// The speed over the presses not yet forgotten, truncated.
    [[nodiscard]] std::int64_t wordsPerMinute() const noexcept REALTIME
    {
        constexpr double kWindowsPerMinute = 60.0 / kWindow;
        constexpr double kStrokesPerWord = 5.0;
        const auto strokes = static_cast<double>(recentStrokeTimestamps_.size());
        return static_cast<std::int64_t>(strokes / kStrokesPerWord * kWindowsPerMinute);
    }

private:
    SpscRing<double> recentStrokeTimestamps_{kCapacity}; // delivering thread -> main
};

} // namespace tocca::keyboard
