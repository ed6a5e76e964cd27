#pragma once

#include <span>
#include <vector>

namespace tocca::soundpack {

/// Root of the squared signal smoothed by a centred Hann window of `ms`.
std::vector<double> envelope(std::span<const double> signal, double ms);

/// Index of the largest value; 0 when empty.
std::size_t indexOfMaximum(std::span<const double> values);

/// Envelope in dB of what lies above 2 kHz, fine enough to tell two clicks apart.
///
/// The high-pass runs forwards and backwards, so that it shifts nothing in time.
std::vector<double> clickEnvelopeDb(std::span<const double> signal);

} // namespace tocca::soundpack
