#pragma once

#include <vector>

namespace tocca::soundpack {

/// Brings a force signal from kContactRate to kSampleRate. An impulse keeps its area per sample.
///
/// Source: Kaiser 1974 (window of the low-pass).
std::vector<double> decimate(const std::vector<double>& force);

} // namespace tocca::soundpack
