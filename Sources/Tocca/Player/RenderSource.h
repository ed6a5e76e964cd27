#pragma once

#include "Support/Realtime.h"

#include <span>

namespace tocca::player {

/// When a block of frames is for.
struct RenderCycle {
    double beginsAt = 0.0;     ///< seconds on the platform's clock at which the server began the cycle
    double sampleRate = 48000; ///< Hz
    int quantum = 64; ///< frames that the server asks for per cycle; a block may be shorter or longer
};

/// Fills blocks of audio on the sound server's real-time thread.
class RenderSource {
public:
    virtual ~RenderSource() = default;

    /// Overwrites `frames` (interleaved stereo floats, ±1.0 full scale) with the sound of one cycle.
    /// Threads: render. Real-time: wait-free.
    virtual void render(std::span<float> frames, const RenderCycle& cycle) noexcept REALTIME = 0;
};

} // namespace tocca::player
