#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tocca::soundpack {

/// What a sound is like: its energy in 24 bands and 6 slices of time after the onset, in dB of its whole energy.
using Fingerprint = std::vector<double>;

Fingerprint fingerprintOf(std::span<const double> signal, std::size_t onset);

/// Root mean square difference of two fingerprints. Units: dB; ten keys of one real keyboard are 4.8 apart.
double distance(const Fingerprint& a, const Fingerprint& b);

/// The largest normalised cross-correlation within 1 ms: 1 for the same sound, whatever its level.
double correlation(std::span<const double> a, std::span<const double> b);

} // namespace tocca::soundpack
