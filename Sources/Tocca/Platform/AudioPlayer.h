#pragma once

#include "Support/Result.h"
#include "Support/SharedBytes.h"

#include <memory>
#include <optional>

namespace tocca::platform {

/// Plays one recording once.
///
/// Units: volume is linear 0…1; pan is −1 left … +1 right, 0 leaves both channels as they are; rate 1 is the recorded speed,
/// pitch follows.
/// Threads: audio queue.
/// Lifetime: destroying a player that sounds fades it out in about 2 ms.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;

    /// Makes `setRate` count; until then the rate is 1.
    virtual void setEnableRate(bool isEnabled) = 0;
    virtual void setRate(float rate) = 0;
    virtual void setVolume(float volume) = 0;
    virtual void setPan(float pan) = 0;

    /// Does everything that `play` would otherwise have to do first.
    virtual void prepareToPlay() = 0;

    /// Starts the recording, as if it had been asked for at `eventTime` (seconds on the platform's `Clock`, now when absent):
    /// two strokes sound exactly as far apart as their event times. A request more than 100 ms old stays silent.
    virtual void play(std::optional<double> eventTime) = 0;
};

class AudioPlayers {
public:
    virtual ~AudioPlayers() = default;

    /// Makes a player for the bytes of an audio file (WAV, MP3 or Ogg Vorbis); the same bytes are decoded once.
    /// Threads: audio queue. Errors: the reason why the bytes cannot be decoded.
    [[nodiscard]] virtual Result<std::unique_ptr<AudioPlayer>> make(const SharedBytes& data) = 0;
};

} // namespace tocca::platform
