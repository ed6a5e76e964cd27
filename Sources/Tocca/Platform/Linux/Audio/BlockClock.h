#pragma once

#include "Player/RenderSource.h"
#include "Support/Realtime.h"

#include <algorithm>

namespace tocca::platform::linux {

/// Works out render cycles for a sound server that says how many frames it wants, but not when they will be heard.
///
/// Blocks follow one another at the nominal rate, corrected slowly towards the times at which they were really asked for: a single request
/// that comes late shifts no stroke. The quantum is the largest block of late, so that the latency stays constant while sizes alternate.
/// After a pause both start afresh.
/// Threads: one at a time. Real-time: wait-free.
class BlockClock {
public:
    /// The cycle of a block of `frames` that is asked for at `now` (seconds).
    [[nodiscard]] player::RenderCycle begin(double now, int frames, double sampleRate) noexcept REALTIME
    {
        const double error = now - next_;
        const bool isAfterPause = error > kPause || error < -kPause;
        const double beginsAt = isAfterPause ? now : next_ + kPull * error;
        next_ = beginsAt + frames / sampleRate;
        if (isAfterPause) {
            // The block that fills the server's buffer says nothing about those that follow.
            largest_ = 0;
            largestBefore_ = 0;
            count_ = 0;
        } else {
            remember(frames);
        }
        const int quantum = std::max(largest_, largestBefore_);
        return {.beginsAt = beginsAt, .sampleRate = sampleRate, .quantum = quantum > 0 ? quantum : frames};
    }

private:
    static constexpr double kPause = 0.05;
    static constexpr double kPull = 0.05;
    static constexpr int kBlocks = 512;

    void remember(int frames) noexcept
    {
        if (++count_ == kBlocks) {
            count_ = 0;
            largestBefore_ = largest_;
            largest_ = 0;
        }
        largest_ = std::max(largest_, frames);
    }

    double next_ = -1.0;
    int count_ = 0;
    int largest_ = 0;       // of the current run of blocks
    int largestBefore_ = 0; // of the run before
};

} // namespace tocca::platform::linux
