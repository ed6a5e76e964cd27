#include "Player/Mixing/SincTable.h"

#include <cmath>
#include <numbers>

namespace tocca::player {

namespace {

// Attenuates what lies beyond the window's transition by some 90 dB.
constexpr double kKaiserBeta = 9.0;
// The highest speed that recordings are played at is 1.35.
constexpr double kReducedCutoff = 1.0 / 1.35;

double besselI0(double x)
{
    double sum = 1.0;
    double term = 1.0;
    for (int n = 1; term > 1e-12 * sum; ++n) {
        term *= (x / (2.0 * n)) * (x / (2.0 * n));
        sum += term;
    }
    return sum;
}

double windowedSinc(double distance, double cutoff, double kaiserBeta)
{
    constexpr double kHalfWidth = SincTable::kTaps / 2.0;
    const double edge = distance / kHalfWidth;
    if (std::abs(edge) >= 1.0) {
        return 0.0;
    }
    const double x = std::numbers::pi * cutoff * distance;
    const double sinc = std::abs(x) < 1e-9 ? 1.0 : std::sin(x) / x;
    return sinc * besselI0(kaiserBeta * std::sqrt(1.0 - edge * edge));
}

SincTable makeTable(double cutoff)
{
    SincTable table{};
    for (std::size_t phase = 0; phase < SincTable::kPhases; ++phase) {
        constexpr auto kPhases = static_cast<double>(SincTable::kPhases);
        const auto here = sincWeights(static_cast<double>(phase) / kPhases, cutoff, kKaiserBeta);
        const auto next = sincWeights(static_cast<double>(phase + 1) / kPhases, cutoff, kKaiserBeta);
        for (std::size_t tap = 0; tap < SincTable::kTaps; ++tap) {
            table.rows[phase].weights[tap] = static_cast<float>(here[tap]);
            table.rows[phase].differences[tap] = static_cast<float>(next[tap] - here[tap]);
        }
    }
    return table;
}

// Made before main, so that the render thread never meets an initialisation guard.
const SincTable kFullBand = makeTable(1.0);
const SincTable kReducedBand = makeTable(kReducedCutoff);

} // namespace

std::array<double, SincTable::kTaps> sincWeights(double position, double cutoff, double kaiserBeta)
{
    std::array<double, SincTable::kTaps> weights{};
    double sum = 0.0;
    for (std::size_t tap = 0; tap < weights.size(); ++tap) {
        const double frame = static_cast<double>(tap) - static_cast<double>(SincTable::kTapsBefore);
        weights[tap] = windowedSinc(position - frame, cutoff, kaiserBeta);
        sum += weights[tap];
    }
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

const SincTable& fullBandTable() noexcept
{
    return kFullBand;
}

const SincTable& reducedBandTable() noexcept
{
    return kReducedBand;
}

} // namespace tocca::player
