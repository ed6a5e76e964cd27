#include "Analysis/Spectrum.h"

#include "Analysis/Envelope.h"
#include "Analysis/Fft.h"
#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <numeric>
#include <vector>

namespace tocca::soundpack {

namespace {

/// Sum of the bins from `lowHz` up to, but without, `highHz`.
double energyBetween(std::span<const double> power, std::size_t size, double lowHz, double highHz)
{
    double energy = 0;
    for (std::size_t bin = 0; bin < power.size(); ++bin) {
        if (binHz(bin, size) >= lowHz && binHz(bin, size) < highHz) {
            energy += power[bin];
        }
    }
    return energy;
}

} // namespace

Spectrum spectrumOf(std::span<const double> signal)
{
    constexpr std::size_t kSmallest = 4096;
    const std::size_t size = std::bit_ceil(std::max(kSmallest, signal.size()));
    const std::vector<double> power = powerSpectrum(signal, size);

    double weight = 0;
    double weighted = 0;
    for (std::size_t bin = 0; bin < power.size(); ++bin) {
        const double hz = binHz(bin, size);
        if (hz >= 60 && hz <= 18000) {
            weight += power[bin];
            weighted += power[bin] * hz;
        }
    }
    const double whole = std::accumulate(power.begin(), power.end(), 0.0);
    Spectrum spectrum{.centroidHz = weighted / weight, .octavesDb = {}, .rumbleDb = 0};
    for (std::size_t i = 0; i < kOctavesHz.size(); ++i) {
        const double low = kOctavesHz[i];
        spectrum.octavesDb[i] = powerDecibels(energyBetween(power, size, low, 2 * low) / whole);
    }
    spectrum.rumbleDb = powerDecibels(energyBetween(power, size, 0, 40) / whole);
    return spectrum;
}

double tonality(std::span<const double> signal, std::size_t onset)
{
    constexpr std::size_t kSize = 16384;
    constexpr std::size_t kTenthOfSecond = 4800;
    const std::span<const double> heard =
        signal.subspan(onset, std::min(kTenthOfSecond, signal.size() - onset));
    const std::vector<double> power = powerSpectrum(heard, kSize);
    std::vector<double> sums(power.size() + 1);
    std::partial_sum(power.begin(), power.end(), sums.begin() + 1);

    const double sixth = std::exp2(1.0 / 6);
    double weight = 0;
    double deviation = 0;
    for (std::size_t bin = 0; bin < power.size(); ++bin) {
        const double hz = binHz(bin, kSize);
        if (hz < 150 || hz > 12000) {
            continue;
        }
        const auto first = static_cast<std::size_t>(std::ceil(static_cast<double>(bin) / sixth));
        const auto last = static_cast<std::size_t>(std::floor(static_cast<double>(bin) * sixth));
        const double smooth = (sums[last + 1] - sums[first]) / static_cast<double>(last + 1 - first);
        weight += smooth;
        deviation += smooth * std::pow(powerDecibels(power[bin] / smooth + 1e-30), 2);
    }
    return std::sqrt(deviation / weight);
}

double effectiveBands(std::span<const double> signal)
{
    constexpr std::size_t kSize = 4096;
    constexpr std::size_t kBands = 71;
    constexpr std::size_t kFrom = 480;
    constexpr std::size_t kLength = 1440;
    const std::size_t start = std::min(signal.size(), indexOfMaximum(envelope(signal, 1)) + kFrom);
    std::vector<double> part(kLength);
    for (std::size_t i = 0; i < std::min(kLength, signal.size() - start); ++i) {
        const double x = static_cast<double>(i) / kLength;
        part[i] = signal[start + i] * (0.5 - 0.5 * std::cos(2 * std::numbers::pi * x));
    }
    const std::vector<double> power = powerSpectrum(part, kSize);
    std::vector<double> bands(kBands);
    const double ratio = std::pow(12000.0 / 200.0, 1.0 / kBands);
    for (std::size_t band = 0; band < kBands; ++band) {
        const double low = 200 * std::pow(ratio, static_cast<double>(band));
        bands[band] = energyBetween(power, kSize, low, low * ratio);
    }
    const double whole = std::accumulate(bands.begin(), bands.end(), 0.0);
    double entropy = 0;
    for (const double band : bands) {
        const double share = band / whole;
        entropy -= share > 0 ? share * std::log(share) : 0;
    }
    return std::exp(entropy);
}

} // namespace tocca::soundpack
