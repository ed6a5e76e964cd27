#pragma once

#include "Player/Mixing/SincTable.h"
#include "Support/Realtime.h"

#include <array>
#include <cstddef>

namespace tocca::player {

/// Estimates how high a signal rises between its samples, by eightfold oversampling.
///
/// Threads: render. Real-time: wait-free.
/// Source: the method of ITU-R BS.1770 Annex 2, at twice its resolution.
class TruePeak {
public:
    /// How many frames around the interval are read: those before its first frame, and those behind it.
    static constexpr std::size_t kFramesBefore = SincTable::kTapsBefore;
    static constexpr std::size_t kFramesBehind = SincTable::kTaps - 1 - kFramesBefore;

    TruePeak() noexcept;

    /// The largest magnitude of either side at seven places between the frame at `frame` (interleaved stereo) and the next.
    [[nodiscard]] float between(const float* frame) const noexcept REALTIME;

private:
    static constexpr std::size_t kPhases = 7;

    /// Every weight stands twice, for the left and the right sample of its frame.
    std::array<std::array<float, 2 * SincTable::kTaps>, kPhases> weights_{};
};

} // namespace tocca::player
