#include "Analysis/CarriageReturn.h"

#include "Analysis/Envelope.h"
#include "Analysis/Fft.h"
#include "Model/Decibel.h"
#include "Synthesis/Filters.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <numeric>
#include <vector>

namespace tocca::soundpack {

namespace {

constexpr double kBellLowHz = 2450;
constexpr double kBellHighHz = 2850;

std::span<const double> between(std::span<const double> signal, double fromMs, double toMs)
{
    const auto from = std::min(signal.size(), static_cast<std::size_t>(fromMs * 48));
    const auto to = std::min(signal.size(), static_cast<std::size_t>(toMs * 48));
    return signal.subspan(from, to - from);
}

double bandPower(std::span<const double> signal, double lowHz, double highHz)
{
    const std::size_t size = std::bit_ceil(signal.size());
    const std::vector<double> power = powerSpectrum(signal, size);
    double sum = 0;
    for (std::size_t bin = 0; bin < power.size(); ++bin) {
        if (binHz(bin, size) >= lowHz && binHz(bin, size) <= highHz) {
            sum += power[bin];
        }
    }
    return sum;
}

// Source: constant peak band-pass, Bristow-Johnson 1998; twice, for skirts that keep the ratchet out.
std::vector<double> bellBand(std::span<const double> signal)
{
    const double centre = std::sqrt(kBellLowHz * kBellHighHz);
    const double angle = 2 * std::numbers::pi * centre / kSampleRate;
    const double alpha = std::sin(angle) * (kBellHighHz - kBellLowHz) / (2 * centre);
    const double a0 = 1 + alpha;
    const Biquad bandPass{alpha / a0, 0, -alpha / a0, -2 * std::cos(angle) / a0, (1 - alpha) / a0};
    return bandPass.apply(bandPass.apply(signal));
}

double powerOf(std::span<const double> part)
{
    const double energy = std::inner_product(part.begin(), part.end(), part.begin(), 0.0);
    return energy / static_cast<double>(part.size());
}

double bellT60(std::span<const double> signal)
{
    constexpr double kMiddlesApart = (425 - 35) * 1e-3;
    const std::vector<double> bell = bellBand(signal);
    return 60 * kMiddlesApart /
           powerDecibels(powerOf(between(bell, 20, 50)) / powerOf(between(bell, 400, 450)));
}

std::vector<double> windowed(std::span<const double> part)
{
    std::vector<double> faded(part.size());
    for (std::size_t i = 0; i < part.size(); ++i) {
        const double x = (static_cast<double>(i) + 0.5) / static_cast<double>(part.size());
        faded[i] = part[i] * (0.5 - 0.5 * std::cos(2 * std::numbers::pi * x));
    }
    return faded;
}

double ratchetHz(std::span<const double> signal)
{
    constexpr std::size_t kSize = 65536;
    std::vector<double> beat = envelope(butterworthHighPass(3000).apply(signal), 1);
    const std::span<const double> purr = between(beat, 60, 290);
    const double mean = std::accumulate(purr.begin(), purr.end(), 0.0) / static_cast<double>(purr.size());
    std::vector<double> swing(purr.begin(), purr.end());
    std::ranges::for_each(swing, [&](double& value) { value -= mean; });
    const std::vector<double> power = powerSpectrum(windowed(swing), kSize);
    double strongest = 0;
    double hz = 0;
    for (std::size_t bin = 0; bin < power.size(); ++bin) {
        const double f = binHz(bin, kSize);
        if (f >= 120 && f <= 320 && power[bin] > strongest) {
            strongest = power[bin];
            hz = f;
        }
    }
    return hz;
}

double endStopMs(std::span<const double> signal)
{
    constexpr double kAfterMs = 200;
    const std::vector<double> level = envelope(signal, 8);
    const std::span<const double> rest = between(level, kAfterMs, 1e6);
    return kAfterMs + static_cast<double>(indexOfMaximum(rest)) / kSampleRate * 1e3;
}

} // namespace

CarriageReturn carriageReturnOf(std::span<const double> signal)
{
    const double whole = bandPower(signal, 0, kSampleRate / 2);
    return {
        .bellT60 = bellT60(signal),
        .bellDb = powerDecibels(bandPower(signal, kBellLowHz, kBellHighHz) / whole),
        .ratchetHz = ratchetHz(signal),
        .endStopMs = endStopMs(signal),
    };
}

} // namespace tocca::soundpack
