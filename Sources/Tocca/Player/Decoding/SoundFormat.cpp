#include "Player/Decoding/SoundFormat.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace tocca::player {

namespace {

// A Vorbis stream's first page holds nothing but the identification packet, behind a header of 27 bytes and one length.
constexpr std::size_t kFirstOggPacket = 28;

bool hasText(std::span<const std::byte> file, std::size_t offset, std::string_view text) noexcept
{
    return file.size() >= offset + text.size() &&
           std::equal(text.begin(), text.end(), file.begin() + static_cast<std::ptrdiff_t>(offset),
                      [](char expected, std::byte found) { return std::byte(expected) == found; });
}

// Eleven set bits, then two for the version (01 is reserved) and two for the layer (01 is layer III).
bool hasMpegSync(std::span<const std::byte> file) noexcept
{
    if (file.size() < 4) {
        return false;
    }
    const auto second = std::to_integer<std::uint8_t>(file[1]);
    return file[0] == std::byte{0xFF} && (second & 0xE0U) == 0xE0U && (second & 0x18U) != 0x08U &&
           (second & 0x06U) == 0x02U;
}

} // namespace

std::optional<SoundFormat> soundFormatOf(std::span<const std::byte> file) noexcept
{
    if (hasText(file, 0, "RIFF") && hasText(file, 8, "WAVE")) {
        return SoundFormat::Wav;
    }
    if (hasText(file, 0, "OggS") && hasText(file, kFirstOggPacket, "\x01vorbis")) {
        return SoundFormat::OggVorbis;
    }
    if (hasText(file, 0, "ID3") || hasMpegSync(file)) {
        return SoundFormat::Mp3;
    }
    return std::nullopt;
}

} // namespace tocca::player
