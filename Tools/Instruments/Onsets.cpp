#include "Instruments/Onsets.h"

#include <algorithm>
#include <numeric>

namespace tocca::instruments {

namespace {

constexpr double kHop = 0.0005;         // seconds
constexpr std::size_t kHistory = 16;    // hops looked back at
constexpr std::size_t kGuard = 2;       // hops before those: a rise may be cut by the hops' edges
constexpr std::size_t kRefractory = 60; // hops that belong to one sound
constexpr double kRise = 8.0;           // energy ratio, 9 dB
constexpr double kFloor = 1e-8;         // energy of a frame's slope below which nothing is heard, -80 dBFS
constexpr double kBalanceTime = 0.010;  // seconds

/// Squared difference to the frame before, both channels together: what rises at an impact is above all the high end.
std::vector<double> slopeEnergy(std::span<const float> stereo)
{
    std::vector<double> energy(stereo.size() / 2, 0.0);
    for (std::size_t i = 0; i < energy.size(); ++i) {
        const double left = stereo[2 * i] - (i > 0 ? stereo[2 * i - 2] : 0.0F);
        const double right = stereo[2 * i + 1] - (i > 0 ? stereo[2 * i - 1] : 0.0F);
        energy[i] = left * left + right * right;
    }
    return energy;
}

std::vector<double> perHop(const std::vector<double>& energy, std::size_t hop)
{
    std::vector<double> sums(energy.size() / hop, 0.0);
    for (std::size_t h = 0; h < sums.size(); ++h) {
        const auto begin = energy.begin() + static_cast<std::ptrdiff_t>(h * hop);
        sums[h] = std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(hop), 0.0);
    }
    return sums;
}

Onset describe(std::span<const float> stereo, std::size_t frame, double sampleRate)
{
    Onset onset{.frame = frame};
    const auto end = std::min(stereo.size() / 2, frame + static_cast<std::size_t>(kBalanceTime * sampleRate));
    for (std::size_t i = frame; i < end; ++i) {
        onset.leftEnergy += static_cast<double>(stereo[2 * i]) * stereo[2 * i];
        onset.rightEnergy += static_cast<double>(stereo[2 * i + 1]) * stereo[2 * i + 1];
    }
    return onset;
}

} // namespace

double Onset::balance() const noexcept
{
    const double sum = leftEnergy + rightEnergy;
    return sum > 0.0 ? (rightEnergy - leftEnergy) / sum : 0.0;
}

std::vector<Onset> findOnsets(std::span<const float> stereo, double sampleRate)
{
    const auto hop = static_cast<std::size_t>(kHop * sampleRate);
    const std::vector<double> energy = slopeEnergy(stereo);
    const std::vector<double> hops = perHop(energy, hop);

    std::vector<Onset> onsets;
    std::size_t next = 0;
    for (std::size_t h = 0; h < hops.size(); ++h) {
        if (h < next) {
            continue;
        }
        const std::size_t last = h > kGuard ? h - kGuard : 0;
        const std::size_t first = last > kHistory ? last - kHistory : 0;
        const auto begin = hops.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end = hops.begin() + static_cast<std::ptrdiff_t>(last);
        const double background = begin == end ? 0.0 : *std::max_element(begin, end);
        if (hops[h] < kFloor || hops[h] < kRise * background) {
            continue;
        }
        const double threshold = std::max(kFloor, kRise * background / static_cast<double>(hop));
        std::size_t frame = last * hop;
        while (energy[frame] < threshold && frame + 1 < (h + 1) * hop) {
            ++frame;
        }
        onsets.push_back(describe(stereo, frame, sampleRate));
        next = h + kRefractory;
    }
    return onsets;
}

} // namespace tocca::instruments
