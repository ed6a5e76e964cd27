#include "Player/Mixing/Mixdown.h"

#include "Player/Mixing/Four.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace tocca::player {

namespace {

constexpr std::size_t kGroup = 4;

void add(float* to, Four what) noexcept
{
    const Four sum = load(to) + what;
    std::memcpy(to, &sum, sizeof sum);
}

} // namespace

SideGains sideGains(float volume, float pan) noexcept
{
    const float level = volume > 0.0F ? std::min(volume, 1.0F) : 0.0F;
    const float position = std::isnan(pan) ? 0.0F : std::clamp(pan, -1.0F, 1.0F);
    return {.left = level * std::min(1.0F, 1.0F - position),
            .right = level * std::min(1.0F, 1.0F + position)};
}

void addMono(std::span<float> frames, const float* samples, SideGains gains) noexcept
{
    const std::size_t count = frames.size() / 2;
    const Four both{gains.left, gains.right, gains.left, gains.right};
    std::size_t i = 0;
    for (; i + kGroup <= count; i += kGroup) {
        const Four four = load(samples + i);
        add(frames.data() + 2 * i, __builtin_shufflevector(four, four, 0, 0, 1, 1) * both);
        add(frames.data() + 2 * i + kGroup, __builtin_shufflevector(four, four, 2, 2, 3, 3) * both);
    }
    for (; i < count; ++i) {
        frames[2 * i] += samples[i] * gains.left;
        frames[2 * i + 1] += samples[i] * gains.right;
    }
}

void addStereo(std::span<float> frames, const float* left, const float* right, SideGains gains) noexcept
{
    const std::size_t count = frames.size() / 2;
    const Four both{gains.left, gains.right, gains.left, gains.right};
    std::size_t i = 0;
    for (; i + kGroup <= count; i += kGroup) {
        const Four fourLeft = load(left + i);
        const Four fourRight = load(right + i);
        add(frames.data() + 2 * i, __builtin_shufflevector(fourLeft, fourRight, 0, 4, 1, 5) * both);
        add(frames.data() + 2 * i + kGroup, __builtin_shufflevector(fourLeft, fourRight, 2, 6, 3, 7) * both);
    }
    for (; i < count; ++i) {
        frames[2 * i] += left[i] * gains.left;
        frames[2 * i + 1] += right[i] * gains.right;
    }
}

} // namespace tocca::player
