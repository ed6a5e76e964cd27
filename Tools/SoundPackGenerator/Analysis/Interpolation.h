#pragma once

#include <cstddef>
#include <vector>

namespace tocca::soundpack {

/// How many steps between two samples `between` can be asked for.
inline constexpr std::size_t kInterpolationSteps = 256;

/// The signal `step` steps after sample `index`, as a band-limited signal has it; 0 outside.
///
/// Source: 16 taps of a sinc under a Hann window.
double between(const std::vector<double>& signal, std::size_t index, std::size_t step);

/// The sound played at `rate` times its speed.
std::vector<double> atRate(const std::vector<double>& sound, double rate);

} // namespace tocca::soundpack
