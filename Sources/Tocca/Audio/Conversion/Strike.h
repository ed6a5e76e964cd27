#pragma once

#include "Audio/Conversion/ConversionPlan.h"
#include "Platform/SoundDecoder.h"
#include "Support/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tocca::audio {

/// Where in a recording a key is heard, and how it sounds there.
struct Strike {
    std::size_t firstFrame = 0;
    std::size_t frameCount = 0;
    double seconds = 0.0;
    double lufs = 0.0;         ///< of the loudest 400 ms
    double peak = 0.0;         ///< linear
    double silenceMs = 0.0;    ///< before the first sound, as it was recorded
    std::uint64_t content = 0; ///< equal for equal samples
};

/// Finds the key's sound in a slice of a recording, or in all of it: from 1 ms before the onset, though at most 120 ms later
/// than the slice begins, to where the sound has died away.
/// Errors: why there is none, in words for people.
[[nodiscard]] Result<Strike> findStrike(const platform::DecodedSound& sound,
                                        const std::optional<Slice>& slice);

/// The strike as 16-bit samples, interleaved, faded in and out. Units: `gain` is linear.
[[nodiscard]] std::vector<std::int16_t> finishedStrike(const platform::DecodedSound& sound,
                                                       const Strike& strike, double gain);

} // namespace tocca::audio
