#pragma once

#include <cstddef>
#include <span>

namespace tocca::soundpack {

/// The largest magnitude.
double peakOf(std::span<const double> signal);

/// Index of the first sample above `share` of the peak; the signal's size for silence.
std::size_t onsetOf(std::span<const double> signal, double share = 0.1);

/// The share of the peak, -40 dB, below which nothing is counted as sound yet.
inline constexpr double kFirstSoundShare = 0.01;

/// From the onset to half of what the next 2 ms reach. Units: ms.
double attackMs(std::span<const double> signal, std::size_t onset);

} // namespace tocca::soundpack
