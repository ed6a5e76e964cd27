#include "Instruments/Recording.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <fstream>

namespace tocca::instruments {

namespace {

static_assert(std::endian::native == std::endian::little);

template <typename T>
void put(std::ofstream& file, T value)
{
    const auto bytes = std::bit_cast<std::array<char, sizeof(T)>>(value);
    file.write(bytes.data(), bytes.size());
}

} // namespace

double Recording::timeOf(std::size_t frame) const noexcept
{
    if (blocks.empty()) {
        return 0.0;
    }
    const auto after = std::upper_bound(blocks.begin(), blocks.end(), frame,
                                        [](std::size_t f, const Block& block) { return f < block.frame; });
    const Block& block = after == blocks.begin() ? *after : *std::prev(after);
    return block.time + (static_cast<double>(frame) - static_cast<double>(block.frame)) / sampleRate;
}

std::size_t Recording::frameAt(double time) const noexcept
{
    if (blocks.empty()) {
        return 0;
    }
    const auto after = std::upper_bound(blocks.begin(), blocks.end(), time,
                                        [](double t, const Block& block) { return t < block.time; });
    const Block& block = after == blocks.begin() ? *after : *std::prev(after);
    const double frame = static_cast<double>(block.frame) + std::round((time - block.time) * sampleRate);
    return static_cast<std::size_t>(std::clamp(frame, 0.0, static_cast<double>(frames())));
}

std::span<const float> Recording::between(double begin, double end) const noexcept
{
    const std::size_t first = frameAt(begin);
    const std::size_t last = std::max(first, frameAt(end));
    return std::span(samples).subspan(2 * first, 2 * (last - first));
}

bool writeWav(std::span<const float> stereo, double sampleRate, const std::string& path)
{
    constexpr std::uint16_t kPcm = 1;
    constexpr std::uint16_t kChannels = 2;
    constexpr std::uint16_t kSampleBytes = 2;
    constexpr std::uint16_t kFrameBytes = kChannels * kSampleBytes;
    constexpr std::uint16_t kSampleBits = 8 * kSampleBytes;
    constexpr std::uint32_t kFormatBytes = 16;
    constexpr std::uint32_t kBytesBeforeData = 36;
    const auto rate = static_cast<std::uint32_t>(std::lround(sampleRate));
    const auto dataBytes = static_cast<std::uint32_t>(stereo.size() * kSampleBytes);

    std::ofstream file(path, std::ios::binary);
    file << "RIFF";
    put(file, kBytesBeforeData + dataBytes);
    file << "WAVEfmt ";
    put(file, kFormatBytes);
    put(file, kPcm);
    put(file, kChannels);
    put(file, rate);
    put(file, rate * kFrameBytes);
    put(file, kFrameBytes);
    put(file, kSampleBits);
    file << "data";
    put(file, dataBytes);
    for (const float sample : stereo) {
        put(file, static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F)));
    }
    file.close();
    return !file.fail();
}

} // namespace tocca::instruments
