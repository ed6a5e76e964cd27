#pragma once

#include <array>
#include <cstddef>

namespace tocca::player {

/// A windowed sinc, sampled at many positions between two frames, for reading a recording at any speed.
///
/// Row p holds the 16 weights for the position p / 128 and, behind them, their differences to the next row, so that weights
/// in between cost one multiplication. The first weight belongs to the frame 7 before the position. Every row sums to 1.
struct SincTable {
    static constexpr std::size_t kTaps = 16;
    static constexpr std::size_t kTapsBefore = 7;
    static constexpr unsigned kPhaseBits = 7;
    static constexpr std::size_t kPhases = std::size_t{1} << kPhaseBits;

    struct alignas(64) Row {
        std::array<float, kTaps> weights;
        std::array<float, kTaps> differences;
    };

    std::array<Row, kPhases> rows;
};

/// The weights of one position between two frames, their sum 1.
/// Units: `position` is 0…1 of the way to the next frame; `cutoff` is a part of the band; a higher `kaiserBeta` rejects more of
/// what lies beyond it, and takes more of the treble below it.
[[nodiscard]] std::array<double, SincTable::kTaps> sincWeights(double position, double cutoff,
                                                               double kaiserBeta);

/// For speeds that raise no audible alias: the whole band. Threads: any. Real-time: wait-free.
[[nodiscard]] const SincTable& fullBandTable() noexcept;

/// For higher speeds: a lower cut-off, which keeps what the speed moves beyond the band from folding back.
[[nodiscard]] const SincTable& reducedBandTable() noexcept;

} // namespace tocca::player
