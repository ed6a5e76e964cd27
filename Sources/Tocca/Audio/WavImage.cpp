#include "Audio/WavImage.h"

#include <string_view>

namespace tocca::audio {

namespace {

constexpr std::uint16_t kBytesPerSample = 2;

/// Appends to a little-endian file image.
class LittleEndianWriter {
public:
    explicit LittleEndianWriter(std::vector<std::byte>& bytes)
        : bytes_(bytes)
    {}

    void text(std::string_view text)
    {
        for (const char c : text) {
            bytes_.push_back(static_cast<std::byte>(c));
        }
    }

    template <class Unsigned>
    void number(Unsigned value)
    {
        for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
            bytes_.push_back(static_cast<std::byte>((std::uint32_t{value} >> (8 * i)) & 0xFFU));
        }
    }

private:
    std::vector<std::byte>& bytes_;
};

} // namespace

std::vector<std::byte> wavImage(std::span<const std::int16_t> samples, std::uint16_t channelCount,
                                std::uint32_t sampleRate)
{
    const auto frameBytes = static_cast<std::uint16_t>(channelCount * kBytesPerSample);
    const auto dataSize = static_cast<std::uint32_t>(samples.size() * kBytesPerSample);
    std::vector<std::byte> bytes;
    bytes.reserve(44 + dataSize);
    LittleEndianWriter out(bytes);
    out.text("RIFF");
    out.number(36 + dataSize);
    out.text("WAVE");
    out.text("fmt ");
    out.number(std::uint32_t{16});
    out.number(std::uint16_t{1}); // integer PCM
    out.number(channelCount);
    out.number(sampleRate);
    out.number(sampleRate * frameBytes);
    out.number(frameBytes);
    out.number(std::uint16_t{16}); // bits per sample
    out.text("data");
    out.number(dataSize);
    for (const std::int16_t sample : samples) {
        out.number(static_cast<std::uint16_t>(sample));
    }
    return bytes;
}

} // namespace tocca::audio
