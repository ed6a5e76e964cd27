#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tocca::instruments {

/// A recording of a sound pack.
struct PackRecording {
    std::string slot; ///< the file's name without number and extension: "press_space"
    std::vector<float> samples;
};

/// Reads the mono recordings of presses in `directory`; empty when there is none.
[[nodiscard]] std::vector<PackRecording> readPack(const std::filesystem::path& directory);

/// The recording that a sound is most like.
struct Likeness {
    std::string slot;
    double correlation = 0.0; ///< normalised, 1 = the same but for its level
    double rate = 0.0;        ///< how fast the recording was played
};

/// Compares interleaved stereo `sound`, which begins within its first 4 ms, with each recording at rates from 0.94 to 1.04.
[[nodiscard]] Likeness mostLike(std::span<const float> sound, const std::vector<PackRecording>& pack);

} // namespace tocca::instruments
