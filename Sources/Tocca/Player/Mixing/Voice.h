#pragma once

#include "Player/Decoding/PcmClip.h"
#include "Player/Mixing/Mixdown.h"
#include "Player/Mixing/SincKernel.h"
#include "Player/Mixing/VoiceRequest.h"
#include "Support/Realtime.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace tocca::player {

/// Reads a recording once at a steady speed and adds it to a mix.
///
/// At the recorded speed the frames are copied; at others each is interpolated from 16 frames around it.
/// Threads: render.
/// Real-time: every member is wait-free.
/// Lifetime: the request's recording must outlive the voice.
class Voice {
public:
    Voice() noexcept = default;

    /// A voice at the recording's first frame, for an output of `outputRate` Hz.
    Voice(const VoiceRequest& request, double outputRate) noexcept REALTIME;

    /// Lets the voice die away within `frames` from its current position; later calls change nothing.
    void fadeOut(std::size_t frames) noexcept REALTIME;

    [[nodiscard]] bool isFading() const noexcept REALTIME { return fadeFrames_ != 0; }

    /// Adds the next part to all of `frames` (interleaved stereo), and returns false once nothing is left.
    bool addTo(std::span<float> frames, const SincKernel& kernel) noexcept REALTIME;

private:
    static constexpr std::size_t kChunk = 64;

    [[nodiscard]] std::size_t framesLeft() const noexcept;
    void addChunk(std::span<float> frames, const SincKernel& kernel) noexcept;
    void applyFade(float* samples, std::size_t count) const noexcept;

    const PcmClip* clip_ = nullptr;
    SideGains gains_;
    std::uint64_t position_ = 0; // frames of the recording, 32.32 fixed point
    std::uint64_t step_ = 0;
    const SincTable* table_ = nullptr;
    std::size_t fadeFrames_ = 0; // length of the fade, 0 before there is one
    std::size_t fadeLeft_ = 0;
};

} // namespace tocca::player
