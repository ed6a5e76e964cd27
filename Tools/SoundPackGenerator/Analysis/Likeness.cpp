#include "Analysis/Likeness.h"

#include "Analysis/Fft.h"
#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tocca::soundpack {

namespace {

constexpr std::size_t kSize = 4096;
constexpr std::size_t kBands = 24;
constexpr double kLowestHz = 80;
constexpr double kHighestHz = 16000;
constexpr std::array<double, 7> kSlicesMs{0, 4, 9, 16, 30, 55, 100};
constexpr double kFloor = 1e-5;

std::size_t bandOf(double hz)
{
    const double x = std::log(hz / kLowestHz) / std::log(kHighestHz / kLowestHz);
    return static_cast<std::size_t>(x * kBands);
}

// Root of a Hann window: power then adds up to the same wherever in the slice it lies, on average.
std::vector<double> slice(std::span<const double> signal, std::size_t from, std::size_t length)
{
    std::vector<double> part(length);
    for (std::size_t i = 0; i < length && from + i < signal.size(); ++i) {
        const double x = (static_cast<double>(i) + 0.5) / static_cast<double>(length);
        part[i] = signal[from + i] * std::sin(std::numbers::pi * x);
    }
    return part;
}

double energyOf(std::span<const double> signal)
{
    return std::inner_product(signal.begin(), signal.end(), signal.begin(), 0.0);
}

} // namespace

Fingerprint fingerprintOf(std::span<const double> signal, std::size_t onset)
{
    const double whole = energyOf(signal);
    Fingerprint print;
    for (std::size_t i = 0; i + 1 < kSlicesMs.size(); ++i) {
        const auto from = static_cast<std::size_t>(kSlicesMs[i] * 1e-3 * kSampleRate);
        const auto to = static_cast<std::size_t>(kSlicesMs[i + 1] * 1e-3 * kSampleRate);
        const std::vector<double> power = powerSpectrum(slice(signal, onset + from, to - from), kSize);
        std::array<double, kBands> bands{};
        for (std::size_t bin = 0; bin < power.size(); ++bin) {
            const double hz = binHz(bin, kSize);
            if (hz >= kLowestHz && hz < kHighestHz) {
                bands.at(bandOf(hz)) += power[bin] * 2 / kSize;
            }
        }
        std::ranges::transform(bands, std::back_inserter(print),
                               [&](double energy) { return powerDecibels(energy / whole + kFloor); });
    }
    return print;
}

double distance(const Fingerprint& a, const Fingerprint& b)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    }
    return std::sqrt(sum / static_cast<double>(a.size()));
}

double correlation(std::span<const double> a, std::span<const double> b)
{
    constexpr std::size_t kOneMs = 48;
    const double scale = std::sqrt(energyOf(a) * energyOf(b));
    double largest = 0;
    for (std::size_t lag = 0; lag <= kOneMs; ++lag) {
        double early = 0;
        double late = 0;
        for (std::size_t n = lag; n < std::min(a.size() + lag, b.size()); ++n) {
            early += a[n - lag] * b[n];
        }
        for (std::size_t n = lag; n < std::min(b.size() + lag, a.size()); ++n) {
            late += a[n] * b[n - lag];
        }
        largest = std::max({largest, std::abs(early) / scale, std::abs(late) / scale});
    }
    return largest;
}

} // namespace tocca::soundpack
