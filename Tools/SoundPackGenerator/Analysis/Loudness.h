#pragma once

#include <span>

namespace tocca::soundpack {

/// Loudness of the loudest 400 ms. Units: LUFS; -200 for silence.
///
/// Source: K-weighting of ITU-R BS.1770-4, without its gates.
double loudness(std::span<const double> signal);

} // namespace tocca::soundpack
