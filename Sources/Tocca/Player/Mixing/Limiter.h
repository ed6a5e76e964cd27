#pragma once

#include "Player/Mixing/TruePeak.h"
#include "Support/Realtime.h"

#include <array>
#include <cstddef>
#include <span>

namespace tocca::player {

/// Keeps a mix at or below −0.5 dBFS true peak, and leaves what stays below −1 dBFS untouched, bit for bit.
///
/// Within a block the gain falls in straight lines that reach what each peak needs in time; it jumps only for a peak at the
/// block's beginning. It recovers over 0.15 s. Samples never exceed the ceiling. The signal between samples may do so at the
/// end of a block, where it depends on the next block: README.md has the figures.
/// Threads: render.
/// Real-time: every member is wait-free; adds no delay.
class Limiter {
public:
    static constexpr float kCeiling = 0.94406088F; // −0.5 dBFS

    /// Limits `frames` (interleaved stereo) in place. Units: `sampleRate` in Hz. Errors: none for finite samples.
    void process(std::span<float> frames, double sampleRate) noexcept REALTIME;

private:
    static constexpr std::size_t kPiece = 64;
    static constexpr std::size_t kBefore = TruePeak::kFramesBefore + 1;
    static constexpr std::size_t kBehind = TruePeak::kFramesBehind;

    void processPiece(std::span<float> piece, std::span<const float> behind, float recovery) noexcept;
    void fillWindow(std::span<const float> piece, std::span<const float> behind) noexcept;
    void findNeeds(std::size_t count) noexcept;
    void planGains(std::size_t count, float recovery) noexcept;
    void remember(std::span<const float> frames) noexcept;

    TruePeak truePeak_;
    float gain_ = 1.0F;
    std::array<float, 2 * kBefore> before_{}; // the last frames as they came in
    std::array<float, 2 * (kBefore + kPiece + kBehind)>
        window_{};                      // a piece as it came in, and its surroundings
    std::ptrdiff_t lastKnown_ = 0;      // frame of the piece; those behind are guesses
    std::array<float, kPiece> needs_{}; // the highest gain that each frame bears
    std::array<float, kPiece> gains_{};
};

} // namespace tocca::player
