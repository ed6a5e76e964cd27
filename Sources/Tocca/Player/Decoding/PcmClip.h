#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace tocca::player {

/// A decoded recording: one or two channels of ±1.0 floats, each in memory of its own with silence before and behind it.
///
/// Threads: immutable, so any.
class PcmClip {
public:
    /// How many zeros may be read before a channel's first frame and behind its last one.
    static constexpr std::size_t kSilenceBefore = 8;
    static constexpr std::size_t kSilenceBehind = 48;

    /// A recording of one channel. Units: `sampleRate` is in Hz.
    PcmClip(std::vector<float> mono, double sampleRate);

    /// A recording of two channels of the same length.
    PcmClip(std::vector<float> left, std::vector<float> right, double sampleRate);

    [[nodiscard]] std::size_t channelCount() const noexcept { return channelCount_; }

    [[nodiscard]] std::size_t frameCount() const noexcept { return frameCount_; }

    [[nodiscard]] double sampleRate() const noexcept { return sampleRate_; }

    /// The frames of one channel; `data()` may be read outside of the span as far as the silence goes.
    [[nodiscard]] std::span<const float> channel(std::size_t index) const noexcept
    {
        return std::span(padded_[index]).subspan(kSilenceBefore, frameCount_);
    }

    /// The memory that the frames take.
    [[nodiscard]] std::size_t byteCount() const noexcept;

private:
    std::array<std::vector<float>, 2> padded_;
    std::size_t channelCount_;
    std::size_t frameCount_;
    double sampleRate_;
};

} // namespace tocca::player
