#include "Synthesis/Filters.h"

#include "Synthesis/Rates.h"

#include <cmath>
#include <numbers>

namespace tocca::soundpack {

std::vector<double> lowPass(std::span<const double> signal, double cutoffHz)
{
    const double keep = std::exp(-2 * std::numbers::pi * cutoffHz / kSampleRate);
    std::vector<double> out(signal.size());
    double state = 0;
    for (std::size_t n = 0; n < signal.size(); ++n) {
        state = (1 - keep) * signal[n] + keep * state;
        out[n] = state;
    }
    return out;
}

std::vector<double> Biquad::apply(std::span<const double> signal) const
{
    std::vector<double> out(signal.size());
    double first = 0;
    double second = 0;
    for (std::size_t n = 0; n < signal.size(); ++n) {
        const double x = signal[n];
        const double y = b0 * x + first;
        first = b1 * x - a1 * y + second;
        second = b2 * x - a2 * y;
        out[n] = y;
    }
    return out;
}

Biquad butterworthHighPass(double cutoffHz)
{
    const double k = std::tan(std::numbers::pi * cutoffHz / kSampleRate);
    const double a0 = 1 + std::numbers::sqrt2 * k + k * k;
    return {1 / a0, -2 / a0, 1 / a0, 2 * (k * k - 1) / a0, (1 - std::numbers::sqrt2 * k + k * k) / a0};
}

} // namespace tocca::soundpack
