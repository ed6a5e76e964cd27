#pragma once

#include "Support/Result.h"
#include "Support/SharedBytes.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace tocca::platform {

/// How many recordings sound at once; another one ends the oldest.
inline constexpr std::size_t kMaxVoices = 36;

/// How a recording is to sound.
///
/// Units: `rate` 1 is the recorded speed, pitch follows; `volume` is linear 0…1; `pan` is −1 left … +1 right, 0 leaves both channels
/// as they are; `eventTime` is in seconds on the platform's `Clock`, now when absent.
struct Playback {
    float rate = 1.0F;
    float volume = 1.0F;
    float pan = 0.0F;
    std::optional<double> eventTime{};
};

/// A recording that was asked for. Threads: audio queue.
/// Lifetime: destroying it while it sounds fades it out in about 2 ms.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;
};

/// Plays recordings.
class AudioPlayers {
public:
    virtual ~AudioPlayers() = default;

    /// Plays the bytes of an audio file (WAV, MP3 or Ogg Vorbis) once, as if that had been asked for at the event time: two strokes
    /// sound exactly as far apart as their event times. A request more than 100 ms old stays silent. The same bytes are decoded once.
    /// Threads: audio queue. Errors: the reason why the bytes cannot be decoded.
    [[nodiscard]] virtual Result<std::unique_ptr<AudioPlayer>> play(const SharedBytes& data,
                                                                    const Playback& playback) = 0;
};

} // namespace tocca::platform
