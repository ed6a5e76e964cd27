#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tocca::soundpack {

/// Power of each of the size/2 + 1 bins from 0 Hz to half the sample rate, without scaling.
///
/// The signal is cut or padded with zeros to `size`, a power of two.
/// Source: Cooley and Tukey 1965.
std::vector<double> powerSpectrum(std::span<const double> signal, std::size_t size);

/// Frequency of a bin of `powerSpectrum` at kSampleRate.
double binHz(std::size_t bin, std::size_t size);

} // namespace tocca::soundpack
