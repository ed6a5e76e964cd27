#include "Player/Decoding/Downmix.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace tocca::player {

namespace {

constexpr float kMinus3dB = 0.70710678F;

// One letter per channel: front L and R, centre C, low-frequency E, surround l and r, rear centre c.
constexpr std::array<std::string_view, Downmix::kMaxChannels + 1> kWavOrder{
    "", "C", "LR", "LRC", "LRlr", "LRClr", "LRCElr", "LRCEclr", "LRCElrlr"};
constexpr std::array<std::string_view, Downmix::kMaxChannels + 1> kVorbisOrder{
    "", "C", "LR", "LCR", "LRlr", "LCRlr", "LCRlrE", "LCRlrcE", "LCRlrlrE"};

float share(char speaker, std::string_view full, std::string_view reduced) noexcept
{
    if (full.find(speaker) != std::string_view::npos) {
        return 1.0F;
    }
    return reduced.find(speaker) != std::string_view::npos ? kMinus3dB : 0.0F;
}

} // namespace

Downmix downmixOf(SoundFormat format, std::size_t channelCount) noexcept
{
    const std::string_view order =
        (format == SoundFormat::OggVorbis ? kVorbisOrder : kWavOrder)[channelCount];
    Downmix mix;
    for (std::size_t i = 0; i < order.size(); ++i) {
        mix.left[i] = share(order[i], "L", "Clc");
        mix.right[i] = share(order[i], "R", "Crc");
    }
    for (auto* side : {&mix.left, &mix.right}) {
        const float sum = std::accumulate(side->begin(), side->end(), 0.0F);
        std::transform(side->begin(), side->end(), side->begin(), [sum](float gain) { return gain / sum; });
    }
    return mix;
}

} // namespace tocca::player
