#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace tocca::soundpack {

/// Lower edges of the octaves that are reported.
inline constexpr std::array<double, 8> kOctavesHz{63, 125, 250, 500, 1000, 2000, 4000, 8000};

/// Where the power of a whole sound lies.
struct Spectrum {
    double centroidHz;                               ///< mean frequency weighted by power, 60 Hz to 18 kHz
    std::array<double, kOctavesHz.size()> octavesDb; ///< relative to the whole
    double rumbleDb;                                 ///< below 40 Hz, relative to the whole
};

Spectrum spectrumOf(std::span<const double> signal);

/// How far single lines stand out of the smoothed spectrum of the 100 ms from `onset`. Units: dB rms.
double tonality(std::span<const double> signal, std::size_t onset);

/// Over how many twelfths of an octave, 200 Hz to 12 kHz, the sound is spread 10 to 40 ms after its maximum.
///
/// A decaying sine has 2, decaying white noise 38.
double effectiveBands(std::span<const double> signal);

} // namespace tocca::soundpack
