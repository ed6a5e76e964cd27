#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tocca::soundpack {

/// First-order low-pass at kSampleRate.
std::vector<double> lowPass(std::span<const double> signal, double cutoffHz);

/// Second-order recursive filter, normalised so that the newest output has factor 1.
struct Biquad {
    double b0;
    double b1;
    double b2;
    double a1;
    double a2;

    std::vector<double> apply(std::span<const double> signal) const;
};

/// Second-order Butterworth high-pass at kSampleRate, by the bilinear transform.
Biquad butterworthHighPass(double cutoffHz);

} // namespace tocca::soundpack
