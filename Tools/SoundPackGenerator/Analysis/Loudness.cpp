#include "Analysis/Loudness.h"

#include "Model/Decibel.h"
#include "Synthesis/Filters.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tocca::soundpack {

namespace {

Biquad shelf()
{
    const double k = std::tan(std::numbers::pi * 1681.974450955533 / kSampleRate);
    const double q = 0.7071752369554196;
    const double high = gain(3.999843853973347);
    const double band = std::pow(high, 0.4996667741545416);
    const double a0 = 1 + k / q + k * k;
    return {(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0, (high - band * k / q + k * k) / a0,
            2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

Biquad highPass()
{
    const double k = std::tan(std::numbers::pi * 38.13547087602444 / kSampleRate);
    const double q = 0.5003270373238773;
    const double a0 = 1 + k / q + k * k;
    // The standard leaves the numerator as it is.
    return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

} // namespace

double loudness(std::span<const double> signal)
{
    constexpr std::size_t kBlock = 19200;
    std::vector<double> padded(signal.begin(), signal.end());
    padded.resize(signal.size() + kBlock);
    const std::vector<double> weighted = highPass().apply(shelf().apply(padded));
    double energy = 0;
    double loudest = 0;
    for (std::size_t n = 0; n < weighted.size(); ++n) {
        energy += weighted[n] * weighted[n];
        if (n >= kBlock) {
            energy -= weighted[n - kBlock] * weighted[n - kBlock];
        }
        loudest = std::max(loudest, energy);
    }
    return -0.691 + powerDecibels(std::max(loudest / kBlock, 1e-20));
}

} // namespace tocca::soundpack
