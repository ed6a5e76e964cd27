#pragma once

#include "Render/Score.h"
#include "Support/Result.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tocca::render {

inline constexpr int kSampleRate = 48000; ///< Hz

/// What the strokes are to sound like.
struct Sound {
    std::string pack = "holy-panda"; ///< the folder's name of a built-in pack, or the path of a plain pack
    std::uint64_t seed = 1;          ///< of the variants and rates that are drawn
    bool playsReleases = false;
};

/// Plays strokes through the engine, the loader, the mixer and its limiter in virtual time, and returns interleaved stereo up to a
/// second behind the last one. The same for the same input.
/// Errors: when there is no such pack, in one line for people; lines that the engine prints are among them.
[[nodiscard]] Result<std::vector<float>> rendered(std::span<const ScoredStroke> strokes, const Sound& sound);

/// Writes it with 16 bits, as FLAC if the file's name ends so, else as WAV.
/// Errors: why it could not be written.
Outcome writeSound(std::span<const float> stereo, const std::filesystem::path& file);

} // namespace tocca::render
