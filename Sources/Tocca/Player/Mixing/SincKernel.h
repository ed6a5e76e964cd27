#pragma once

#include "Player/Mixing/SincTable.h"
#include "Support/Realtime.h"

#include <cstdint>

namespace tocca::player {

/// A stretch of a recording to be read at a steady speed.
///
/// Units: `position` and `step` count frames of the recording in 32.32 fixed point.
struct SincRead {
    /// Frames made at a time; `count` is rounded up to a multiple, and the output must have room for that.
    static constexpr int kGroup = 4;

    const SincTable& table;
    std::uint64_t position;
    std::uint64_t step;
    int count;
};

/// Reads a channel, or two at once, from `position` on: `out[i]` is the value at `position + i * step`.
///
/// The recording must be readable 7 frames before the first position and 9 behind the last of the rounded-up count.
/// Real-time: wait-free.
struct SincKernel {
    void (*mono)(const SincRead& read, const float* in, float* out) noexcept;
    void (*stereo)(const SincRead& read, const float* left, const float* right, float* outLeft,
                   float* outRight) noexcept;
};

/// The kernel for any processor of the architecture that the program was built for.
[[nodiscard]] SincKernel baselineSincKernel() noexcept;

/// The fastest kernel for the processor that the program runs on. Threads: any.
[[nodiscard]] SincKernel bestSincKernel() noexcept;

} // namespace tocca::player
