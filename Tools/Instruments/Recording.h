#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace tocca::instruments {

/// What was heard, with the time of each frame.
///
/// Units: `samples` are interleaved stereo, ±1.0 full scale; times are seconds on CLOCK_MONOTONIC.
struct Recording {
    /// Where a block of the recording begins.
    struct Block {
        std::size_t frame = 0;
        double time = 0.0; ///< when the sound server began the cycle that delivered it
    };

    double sampleRate = 48000.0;
    std::vector<float> samples;
    std::vector<Block> blocks; ///< in order
    int gaps = 0;              ///< blocks that were not the continuation of the one before

    [[nodiscard]] std::size_t frames() const noexcept { return samples.size() / 2; }

    /// When `frame` was at the sink. Errors: 0 for a recording without blocks.
    [[nodiscard]] double timeOf(std::size_t frame) const noexcept;

    /// The samples from `begin` up to `end` (seconds), as far as they were recorded.
    [[nodiscard]] std::span<const float> between(double begin, double end) const noexcept;

private:
    [[nodiscard]] std::size_t frameAt(double time) const noexcept;
};

/// Writes interleaved stereo as 16-bit WAV. Errors: false when the file cannot be written.
[[nodiscard]] bool writeWav(std::span<const float> stereo, double sampleRate, const std::string& path);

} // namespace tocca::instruments
