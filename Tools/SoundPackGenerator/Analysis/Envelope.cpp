#include "Analysis/Envelope.h"

#include "Model/Decibel.h"
#include "Synthesis/Filters.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tocca::soundpack {

namespace {

std::vector<double> hann(std::size_t length)
{
    std::vector<double> window(length);
    for (std::size_t i = 0; i < length; ++i) {
        const double x = static_cast<double>(i + 1) / static_cast<double>(length + 1);
        window[i] = 0.5 - 0.5 * std::cos(2 * std::numbers::pi * x);
    }
    const double sum = std::accumulate(window.begin(), window.end(), 0.0);
    std::ranges::transform(window, window.begin(), [&](double value) { return value / sum; });
    return window;
}

} // namespace

std::vector<double> envelope(std::span<const double> signal, double ms)
{
    const auto half = static_cast<std::ptrdiff_t>(ms * 1e-3 * kSampleRate / 2);
    const std::vector<double> window = hann(static_cast<std::size_t>(2 * half + 1));
    const auto size = static_cast<std::ptrdiff_t>(signal.size());
    std::vector<double> smooth(signal.size());
    for (std::ptrdiff_t n = 0; n < size; ++n) {
        double sum = 0;
        for (std::ptrdiff_t i = std::max(-half, -n); i <= std::min(half, size - 1 - n); ++i) {
            const double sample = signal[static_cast<std::size_t>(n + i)];
            sum += window[static_cast<std::size_t>(half + i)] * sample * sample;
        }
        smooth[static_cast<std::size_t>(n)] = std::sqrt(sum);
    }
    return smooth;
}

std::size_t indexOfMaximum(std::span<const double> values)
{
    return static_cast<std::size_t>(std::ranges::max_element(values) - values.begin());
}

std::vector<double> clickEnvelopeDb(std::span<const double> signal)
{
    constexpr double kClicksAboveHz = 2000;
    constexpr double kFineMs = 0.6;
    const Biquad highPass = butterworthHighPass(kClicksAboveHz);
    std::vector<double> clicks = highPass.apply(signal);
    std::ranges::reverse(clicks);
    clicks = highPass.apply(clicks);
    std::ranges::reverse(clicks);
    std::vector<double> level = envelope(clicks, kFineMs);
    std::ranges::transform(level, level.begin(), [](double value) { return decibels(value + 1e-12); });
    return level;
}

} // namespace tocca::soundpack
