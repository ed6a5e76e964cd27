#pragma once

#include "Support/Result.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tocca::soundpack {

/// A WAV file of whole samples as it stands on disk.
struct WavFile {
    int sampleRate = 0;
    int channels = 0;
    int bitsPerSample = 0;
    std::vector<std::int16_t> samples; ///< interleaved; empty unless 16 bit
};

/// The bytes of a mono 16-bit file at kSampleRate.
std::string wavBytes(std::span<const std::int16_t> samples);

/// Writes bytes under a temporary name beside `path` and renames, so that `path` is never half a file.
///
/// Errors: what failed; then the temporary file is gone and `path` is as it was.
Outcome writeFile(const std::filesystem::path& path, const std::string& bytes);

/// Reads a file written by `wavBytes`, or one of its kind.
Result<WavFile> readWav(const std::filesystem::path& path);

} // namespace tocca::soundpack
