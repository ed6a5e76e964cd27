#include "Player/Decoding/PcmClip.h"

#include <utility>

namespace tocca::player {

namespace {

std::vector<float> padded(std::vector<float> frames)
{
    const std::size_t count = frames.size();
    frames.reserve(PcmClip::kSilenceBefore + count + PcmClip::kSilenceBehind);
    frames.insert(frames.begin(), PcmClip::kSilenceBefore, 0.0F);
    frames.resize(PcmClip::kSilenceBefore + count + PcmClip::kSilenceBehind, 0.0F);
    frames.shrink_to_fit();
    return frames;
}

} // namespace

PcmClip::PcmClip(std::vector<float> mono, double sampleRate)
    : channelCount_(1)
    , frameCount_(mono.size())
    , sampleRate_(sampleRate)
{
    padded_[0] = padded(std::move(mono));
}

PcmClip::PcmClip(std::vector<float> left, std::vector<float> right, double sampleRate)
    : channelCount_(2)
    , frameCount_(left.size())
    , sampleRate_(sampleRate)
{
    right.resize(frameCount_, 0.0F);
    padded_[0] = padded(std::move(left));
    padded_[1] = padded(std::move(right));
}

std::size_t PcmClip::byteCount() const noexcept
{
    return (padded_[0].size() + padded_[1].size()) * sizeof(float);
}

} // namespace tocca::player
