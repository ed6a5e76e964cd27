#pragma once

#include "Support/Result.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tocca::platform {

/// A recording as numbers.
struct DecodedSound {
    std::vector<std::vector<float>> channels; ///< one or two, equally long; ±1.0 is full scale
    double sampleRate = 0.0;                  ///< Hz

    [[nodiscard]] std::size_t frameCount() const noexcept
    {
        return channels.empty() ? 0 : channels.front().size();
    }
};

/// Turns sound files into numbers, at their own rate.
class SoundDecoder {
public:
    virtual ~SoundDecoder() = default;

    /// Decodes the first `longestSeconds` of a file, with every instant where its author hears it.
    /// Threads: any.
    /// Errors: why it cannot be decoded, in a sentence for people.
    [[nodiscard]] virtual Result<DecodedSound> decode(std::span<const std::byte> file,
                                                      double longestSeconds) const = 0;
};

} // namespace tocca::platform
