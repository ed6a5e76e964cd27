#include "Support/Loudness.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace tocca {

namespace {

/// Second-order recursive filter, normalised so that the newest output has factor 1.
struct Biquad {
    double b0;
    double b1;
    double b2;
    double a1;
    double a2;
    double first = 0;
    double second = 0;

    double next(double x)
    {
        const double y = b0 * x + first;
        first = b1 * x - a1 * y + second;
        second = b2 * x - a2 * y;
        return y;
    }
};

Biquad shelf(double sampleRate)
{
    const double k = std::tan(std::numbers::pi * 1681.974450955533 / sampleRate);
    const double q = 0.7071752369554196;
    const double high = std::pow(10.0, 3.999843853973347 / 20);
    const double band = std::pow(high, 0.4996667741545416);
    const double a0 = 1 + k / q + k * k;
    return {(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0, (high - band * k / q + k * k) / a0,
            2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

Biquad highPass(double sampleRate)
{
    const double k = std::tan(std::numbers::pi * 38.13547087602444 / sampleRate);
    const double q = 0.5003270373238773;
    const double a0 = 1 + k / q + k * k;
    // The standard leaves the numerator as it is.
    return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

void addPower(std::vector<double>& powers, std::span<const double> signal, double sampleRate)
{
    Biquad first = shelf(sampleRate);
    Biquad then = highPass(sampleRate);
    for (std::size_t n = 0; n < powers.size(); ++n) {
        const double y = then.next(first.next(n < signal.size() ? signal[n] : 0.0));
        powers[n] += y * y;
    }
}

} // namespace

double loudness(std::span<const std::vector<double>> channels, double sampleRate)
{
    constexpr double kBlockSeconds = 0.4;
    const auto block = static_cast<std::size_t>(std::lround(kBlockSeconds * sampleRate));
    std::vector<double> powers(channels.empty() ? 0 : channels.front().size() + block);
    for (const auto& channel : channels) {
        addPower(powers, channel, sampleRate);
    }
    double energy = 0;
    double loudest = 0;
    for (std::size_t n = 0; n < powers.size(); ++n) {
        energy += powers[n];
        if (n >= block) {
            energy -= powers[n - block];
        }
        loudest = std::max(loudest, energy);
    }
    const double count =
        static_cast<double>(block) * static_cast<double>(std::max<std::size_t>(channels.size(), 1));
    return -0.691 + 10 * std::log10(std::max(loudest / count, 1e-20));
}

} // namespace tocca
