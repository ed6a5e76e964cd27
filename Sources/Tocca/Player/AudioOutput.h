#pragma once

#include "Player/RenderSource.h"

namespace tocca::player {

/// The way to the loudspeakers: asks a render source for blocks while something may sound.
///
/// Lifetime: destruction ends the last call of the source before it returns.
class AudioOutput {
public:
    virtual ~AudioOutput() = default;

    /// Begins to ask `source`; called once. Threads: main. Errors: without a sound server it keeps looking for one.
    virtual void start(RenderSource& source) = 0;

    /// The device's rate in Hz, 48000 until one is known. Threads: any.
    [[nodiscard]] virtual double sampleRate() const noexcept = 0;

    /// Tells that a sound is about to be played, which wakes an output that was released for want of any.
    /// Threads: audio queue. Never waits for the server.
    virtual void noteActivity() noexcept = 0;
};

} // namespace tocca::player
