#pragma once

#include "Support/SharedBytes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tocca::instruments {

using Bytes = std::vector<std::byte>;

/// The fields of a WAV header, written as they are, right or wrong.
struct WavHeader {
    std::uint16_t format = 1; ///< 1 integer, 3 float
    std::uint16_t channels = 1;
    std::uint32_t sampleRate = 48000;
    std::uint16_t bits = 16;
};

/// A WAV file written by hand around `data`, the sample bytes.
[[nodiscard]] Bytes wavFile(const WavHeader& header, const Bytes& data);

/// A WAV file of 32-bit floats, interleaved.
[[nodiscard]] Bytes floatWav(const std::vector<float>& samples, std::uint16_t channels = 1,
                             std::uint32_t sampleRate = 48000);

enum class Encoding { Wav16, OggVorbis, Mp3, Flac, Aiff };

/// `samples` (interleaved) as the system's library encodes them.
[[nodiscard]] Bytes encoded(Encoding encoding, const std::vector<float>& samples, int channels = 1,
                            int sampleRate = 44100);

[[nodiscard]] inline SharedBytes shared(Bytes bytes)
{
    return std::make_shared<const Bytes>(std::move(bytes));
}

/// A sine wave. Units: `frequency` and `sampleRate` in Hz.
[[nodiscard]] std::vector<float> sine(double frequency, double sampleRate, std::size_t frames,
                                      double level = 0.5);

/// A decaying noise, always the same: what a key sounds like to an encoder.
[[nodiscard]] std::vector<float> click(std::size_t frames, float level = 0.8F);

} // namespace tocca::instruments
