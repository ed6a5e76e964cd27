#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tocca::audio {

/// A WAV file of 16-bit samples, interleaved.
/// Units: `sampleRate` in Hz.
[[nodiscard]] std::vector<std::byte> wavImage(std::span<const std::int16_t> samples,
                                              std::uint16_t channelCount, std::uint32_t sampleRate);

} // namespace tocca::audio
