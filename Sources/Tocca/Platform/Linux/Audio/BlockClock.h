#pragma once

#include "Support/Realtime.h"

namespace tocca::platform::linux {

/// Estimates when each block of a stream begins for a server that only says that it wants frames.
///
/// Blocks are laid end to end at the nominal rate and drawn gently towards the times at which they were really asked for, so
/// that the scheduling of single requests does not shift strokes. After a pause it starts afresh.
/// Units: seconds; rate in Hz.
/// Threads: one at a time. Real-time: wait-free.
class BlockClock {
public:
    /// The beginning of a block of `frames` that is asked for at `now`.
    [[nodiscard]] double begin(double now, int frames, double sampleRate) noexcept REALTIME
    {
        const double error = now - next_;
        const double beginsAt = error > kPause || error < -kPause ? now : next_ + kPull * error;
        next_ = beginsAt + frames / sampleRate;
        return beginsAt;
    }

private:
    static constexpr double kPause = 0.05;
    static constexpr double kPull = 0.05;

    double next_ = -1.0;
};

} // namespace tocca::platform::linux
