#include "Analysis/Onset.h"

#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>

namespace tocca::soundpack {

namespace {

std::size_t firstAbove(std::span<const double> signal, double threshold)
{
    const auto found =
        std::ranges::find_if(signal, [&](double sample) { return std::abs(sample) > threshold; });
    return static_cast<std::size_t>(found - signal.begin());
}

} // namespace

double peakOf(std::span<const double> signal)
{
    double peak = 0;
    for (const double sample : signal) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

std::size_t onsetOf(std::span<const double> signal, double share)
{
    return firstAbove(signal, share * peakOf(signal));
}

double attackMs(std::span<const double> signal, std::size_t onset)
{
    constexpr std::size_t kTwoMs = 96;
    const std::span<const double> start = signal.subspan(onset, std::min(kTwoMs, signal.size() - onset));
    const double half = 0.5 * peakOf(start);
    const auto reached = std::ranges::find_if(start, [&](double sample) { return std::abs(sample) >= half; });
    return static_cast<double>(reached - start.begin()) / kSampleRate * 1e3;
}

} // namespace tocca::soundpack
