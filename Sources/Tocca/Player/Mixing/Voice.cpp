#include "Player/Mixing/Voice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace tocca::player {

namespace {

constexpr std::uint64_t kOneFrame = std::uint64_t{1} << 32U;

constexpr float kMinRate = 0.25F;
constexpr float kMaxRate = 4.0F;
// The silence behind a recording covers one group of frames and the taps behind it at this step.
constexpr double kMaxStep = 8.0;
static_assert(PcmClip::kSilenceBefore >= SincTable::kTapsBefore);
static_assert(PcmClip::kSilenceBehind >=
              std::size_t{SincRead::kGroup} * 8 + SincTable::kTaps - SincTable::kTapsBefore);

// Up to this step the highest alias of a recording at 44.1 kHz comes out at 20 kHz, where it is not heard; the full band
// keeps strokes slightly above and below the recorded speed equally bright.
constexpr double kFullBandStep = 1.08;

double stepOf(const VoiceRequest& request, double outputRate) noexcept
{
    const float wanted = request.playback.rate;
    const float rate = std::isnan(wanted) ? 1.0F : std::clamp(wanted, kMinRate, kMaxRate);
    return std::min(static_cast<double>(rate) * (request.clip->sampleRate() / outputRate), kMaxStep);
}

} // namespace

Voice::Voice(const VoiceRequest& request, double outputRate) noexcept
    : clip_(request.clip.get())
    , gains_(sideGains(request.playback.volume, request.playback.pan))
{
    const double step = stepOf(request, outputRate);
    step_ = std::max<std::uint64_t>(1, static_cast<std::uint64_t>(std::llround(step * kOneFrame)));
    table_ = step <= kFullBandStep ? &fullBandTable() : &reducedBandTable();
}

void Voice::fadeOut(std::size_t frames) noexcept
{
    if (!isFading()) {
        fadeFrames_ = std::max<std::size_t>(1, frames);
        fadeLeft_ = fadeFrames_;
    }
}

bool Voice::addTo(std::span<float> frames, const SincKernel& kernel) noexcept
{
    std::size_t left = framesLeft();
    while (!frames.empty() && left > 0) {
        const std::size_t count = std::min({frames.size() / 2, left, kChunk});
        addChunk(frames.first(2 * count), kernel);
        frames = frames.subspan(2 * count);
        left -= count;
    }
    return left > 0;
}

std::size_t Voice::framesLeft() const noexcept
{
    const std::uint64_t end = static_cast<std::uint64_t>(clip_->frameCount()) << 32U;
    const std::uint64_t left = position_ < end ? (end - position_ + step_ - 1) / step_ : 0;
    return isFading() ? std::min<std::size_t>(left, fadeLeft_) : left;
}

void Voice::addChunk(std::span<float> frames, const SincKernel& kernel) noexcept
{
    const std::size_t count = frames.size() / 2;
    const bool isStereo = clip_->channelCount() == 2;
    const bool isCopy = step_ == kOneFrame;
    alignas(64) std::array<float, kChunk> scratch[2];
    const float* sources[2]{};
    for (std::size_t channel = 0; channel < clip_->channelCount(); ++channel) {
        sources[channel] = clip_->channel(channel).data();
    }

    if (isCopy) {
        for (std::size_t channel = 0; channel < clip_->channelCount(); ++channel) {
            sources[channel] += position_ >> 32U;
        }
    } else {
        const SincRead read{
            .table = *table_, .position = position_, .step = step_, .count = static_cast<int>(count)};
        if (isStereo) {
            kernel.stereo(read, sources[0], sources[1], scratch[0].data(), scratch[1].data());
        } else {
            kernel.mono(read, sources[0], scratch[0].data());
        }
    }
    if (!isCopy || isFading()) {
        for (std::size_t channel = 0; channel < clip_->channelCount(); ++channel) {
            float* const samples = scratch[channel].data();
            if (isCopy) {
                std::memcpy(samples, sources[channel], count * sizeof(float));
            }
            if (isFading()) {
                applyFade(samples, count);
            }
            sources[channel] = samples;
        }
    }

    if (isStereo) {
        addStereo(frames, sources[0], sources[1], gains_);
    } else {
        addMono(frames, sources[0], gains_);
    }
    position_ += step_ * count;
    fadeLeft_ -= isFading() ? count : 0;
}

void Voice::applyFade(float* samples, std::size_t count) const noexcept
{
    const float unit = 1.0F / static_cast<float>(fadeFrames_);
    for (std::size_t i = 0; i < count; ++i) {
        samples[i] *= static_cast<float>(fadeLeft_ - 1 - i) * unit;
    }
}

} // namespace tocca::player
