#include "Synthesis/Decimator.h"

#include "Synthesis/Rates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <numeric>

namespace tocca::soundpack {

namespace {

constexpr int kHalf = 40;
constexpr std::ptrdiff_t kLastTap = std::ptrdiff_t{2} * kHalf;
using Taps = std::array<double, 2 * kHalf + 1>;

double besselI0(double x)
{
    double sum = 1;
    double term = 1;
    for (int k = 1; term > 1e-17 * sum; ++k) {
        term *= (x / (2 * k)) * (x / (2 * k));
        sum += term;
    }
    return sum;
}

Taps designTaps()
{
    constexpr double kKaiserBeta = 5;
    Taps taps{};
    for (int i = 0; i <= 2 * kHalf; ++i) {
        const double offset = i - kHalf;
        const double angle = std::numbers::pi * offset / kOversampling;
        const double sinc = i == kHalf ? 1 : std::sin(angle) / angle;
        const double inside = std::sqrt(1 - (offset / kHalf) * (offset / kHalf));
        taps.at(static_cast<std::size_t>(i)) = sinc * besselI0(kKaiserBeta * inside) / besselI0(kKaiserBeta);
    }
    const double sum = std::accumulate(taps.begin(), taps.end(), 0.0);
    std::ranges::transform(taps, taps.begin(), [&](double tap) { return kOversampling * tap / sum; });
    return taps;
}

} // namespace

std::vector<double> decimate(const std::vector<double>& force)
{
    static const Taps taps = designTaps();
    const auto size = static_cast<std::ptrdiff_t>(force.size());
    std::vector<double> slow(force.size() / kOversampling);
    for (std::size_t n = 0; n < slow.size(); ++n) {
        const auto newest = static_cast<std::ptrdiff_t>(n) * kOversampling + kHalf;
        const std::ptrdiff_t first = std::max<std::ptrdiff_t>(0, newest - size + 1);
        const std::ptrdiff_t last = std::min(kLastTap, newest);
        double sum = 0;
        for (std::ptrdiff_t i = first; i <= last; ++i) {
            sum += taps[static_cast<std::size_t>(i)] * force[static_cast<std::size_t>(newest - i)];
        }
        slow[n] = sum;
    }
    return slow;
}

} // namespace tocca::soundpack
