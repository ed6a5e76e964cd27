#include "Player/Mixing/Limiter.h"

#include <algorithm>
#include <cmath>

namespace tocca::player {

namespace {

// Rounding must not lift a product over the ceiling.
constexpr float kTarget = Limiter::kCeiling * (1.0F - 1e-6F);
// Between two samples a signal hardly ever rises above twice the higher one, so below this no look between them is needed.
constexpr float kNearCeiling = Limiter::kCeiling / 2.0F;
constexpr double kRecoverySeconds = 0.15;
// The frames after a block are not known yet. Going on with its last slope, ever flatter, misjudges the fewest peaks.
constexpr float kSlopeKept = 0.7F;

float peakOf(std::span<const float> samples) noexcept
{
    float peak = 0.0F;
    for (const float sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

} // namespace

void Limiter::process(std::span<float> frames, double sampleRate) noexcept
{
    if (gain_ == 1.0F && peakOf(frames) <= kNearCeiling) {
        remember(frames);
        return;
    }
    const auto recovery = static_cast<float>(1.0 / (kRecoverySeconds * sampleRate));
    while (!frames.empty()) {
        const std::size_t count = std::min(frames.size(), 2 * kPiece);
        processPiece(frames.first(count), frames.subspan(count), recovery);
        frames = frames.subspan(count);
    }
}

void Limiter::processPiece(std::span<float> piece, std::span<const float> behind, float recovery) noexcept
{
    const std::size_t count = piece.size() / 2;
    fillWindow(piece, behind);
    findNeeds(count);
    remember(piece);
    planGains(count, recovery);
    for (std::size_t i = 0; i < count; ++i) {
        piece[2 * i] *= gains_[i];
        piece[2 * i + 1] *= gains_[i];
    }
}

void Limiter::fillWindow(std::span<const float> piece, std::span<const float> behind) noexcept
{
    const auto end =
        std::copy(piece.begin(), piece.end(), std::copy(before_.begin(), before_.end(), window_.begin()));
    const std::size_t known = std::min(behind.size(), 2 * kBehind);
    lastKnown_ = static_cast<std::ptrdiff_t>((piece.size() + known) / 2) - 1;
    auto next = std::copy(behind.begin(), behind.begin() + static_cast<std::ptrdiff_t>(known), end);
    for (; next != window_.end(); ++next) {
        *next = *(next - 2) + kSlopeKept * (*(next - 2) - *(next - 4));
    }
}

void Limiter::findNeeds(std::size_t count) noexcept
{
    const float* const first = window_.data() + 2 * kBefore;
    const auto level = [first](std::ptrdiff_t frame) {
        return std::max(std::abs(first[2 * frame]), std::abs(first[2 * frame + 1]));
    };
    // What follows the last known frame is a guess, so the signal behind that frame is looked at with the next block.
    const auto between = [this, first, &level](std::ptrdiff_t frame) {
        if (frame >= lastKnown_) {
            return level(frame);
        }
        const float higher = std::max(level(frame), level(frame + 1));
        return higher > kNearCeiling ? std::max(higher, truePeak_.between(first + 2 * frame)) : higher;
    };
    float peakBefore = between(-1);
    for (std::size_t i = 0; i < count; ++i) {
        const auto frame = static_cast<std::ptrdiff_t>(i);
        const float peakBehind = between(frame);
        const float peak = std::max(peakBefore, peakBehind);
        needs_[i] = peak > kTarget ? kTarget / peak : 1.0F;
        peakBefore = peakBehind;
    }
}

void Limiter::planGains(std::size_t count, float recovery) noexcept
{
    std::size_t next = 0;
    while (next < count) {
        // Of the straight lines from here to each later need, the steepest keeps below all of them.
        float slope = 0.0F;
        std::size_t end = count;
        float lowest = 1.0F;
        for (std::size_t i = next; i < count; ++i) {
            const float toNeed = (needs_[i] - gain_) / static_cast<float>(i + 1 - next);
            if (toNeed < slope) {
                slope = toNeed;
                end = i;
            }
            lowest = std::min(lowest, needs_[i]);
        }
        const bool falls = end < count;
        const std::size_t last = falls ? end : count - 1;
        const float from = gain_;
        for (std::size_t i = next; i <= last; ++i) {
            const auto steps = static_cast<float>(i + 1 - next);
            gains_[i] =
                falls ? std::min(from + slope * steps, needs_[i]) : std::min(from + recovery * steps, lowest);
        }
        gain_ = gains_[last];
        next = last + 1;
    }
}

void Limiter::remember(std::span<const float> frames) noexcept
{
    const std::size_t kept = std::min(frames.size(), before_.size());
    std::copy(before_.begin() + static_cast<std::ptrdiff_t>(kept), before_.end(), before_.begin());
    std::copy(frames.end() - static_cast<std::ptrdiff_t>(kept), frames.end(),
              before_.end() - static_cast<std::ptrdiff_t>(kept));
}

} // namespace tocca::player
