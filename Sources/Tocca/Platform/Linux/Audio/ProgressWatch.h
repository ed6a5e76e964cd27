#pragma once

#include <algorithm>
#include <cstdint>

namespace tocca::platform::linux {

/// Notices a server that has stopped asking for sound.
///
/// It waits two seconds at first and twice as long each time after, up to half a minute, so that a slow server is not asked anew before it
/// can answer. The next cycle makes it two seconds again.
/// Units: seconds of one clock; cycles as a running total.
/// Threads: one at a time.
class ProgressWatch {
public:
    /// Starts waiting anew.
    void restart(double now) noexcept { lastProgress_ = now; }

    /// Whether there has been no cycle for that long.
    [[nodiscard]] bool hasStalled(std::uint64_t cycles, double now) noexcept
    {
        if (cycles != lastCycles_) {
            lastCycles_ = cycles;
            lastProgress_ = now;
            patience_ = kFirstPatience;
            return false;
        }
        if (now - lastProgress_ <= patience_) {
            return false;
        }
        patience_ = std::min(patience_ * 2.0, kLastPatience);
        return true;
    }

private:
    static constexpr double kFirstPatience = 2.0;
    static constexpr double kLastPatience = 30.0;

    double patience_ = kFirstPatience;
    double lastProgress_ = 0.0;
    std::uint64_t lastCycles_ = 0;
};

} // namespace tocca::platform::linux
