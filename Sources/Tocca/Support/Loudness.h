#pragma once

#include <span>
#include <vector>

namespace tocca {

/// Loudness of the loudest 400 ms of a short sound; the channels of one with several count as an average, so that two equal
/// ones are as loud as one.
///
/// Units: LUFS, -200 for silence; `sampleRate` in Hz, 4000 or more; all channels have the same length.
/// Threads: any.
/// Source: K-weighting of ITU-R BS.1770-4, without its gates.
[[nodiscard]] double loudness(std::span<const std::vector<double>> channels, double sampleRate);

} // namespace tocca
