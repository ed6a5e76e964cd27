#pragma once

#include <cstddef>
#include <span>

namespace tocca::soundpack {

/// How long the sound would take to die by 60 dB at the pace of its first 10. Units: ms.
///
/// Source: energy still to come, Schroeder 1965.
double earlyDecayMs(std::span<const double> signal);

/// From the onset to where the envelope stays more than `db` below its maximum. Units: ms.
double timeAboveMs(std::span<const double> signal, std::size_t onset, double db);

} // namespace tocca::soundpack
