#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace tocca::player {

/// The kinds of sound file that are played.
enum class SoundFormat { Wav, Mp3, OggVorbis };

/// Tells the format of a file by its first bytes, so that no parser of another format ever sees foreign bytes.
/// Threads: any.
[[nodiscard]] std::optional<SoundFormat> soundFormatOf(std::span<const std::byte> file) noexcept;

} // namespace tocca::player
