#include "Synthesis/Room.h"

#include "Model/Decibel.h"
#include "Synthesis/Filters.h"
#include "Synthesis/RandomStream.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tocca::soundpack {

namespace {

struct Reflection {
    double ms;
    double db;
    double cutoffHz;
};

constexpr std::array<Reflection, 7> kReflections{{
    {0.13, -5.5, 9000}, // desk
    {0.61, -15, 5200},  // case
    {1.48, -19, 6000},
    {3.1, -20, 7000}, // room
    {4.7, -23, 5000},
    {7.3, -25, 5500},
    {10.9, -27, 4200},
}};

constexpr double kLowBelowHz = 1100;
constexpr double kHighAboveHz = 4200;

struct Tap {
    std::size_t delay;
    double level;
};

using VelvetTail = std::vector<Tap>;

struct Tails {
    VelvetTail low;
    VelvetTail mid;
    VelvetTail high;
};

VelvetTail drawTail(double t60, RandomStream& random)
{
    constexpr double kStep = 20;
    constexpr double kLastSample = 12480;
    constexpr double kBuildUp = 0.004;
    VelvetTail taps;
    for (int k = 0;; ++k) {
        const double sample = std::trunc(kStep * k + (kStep - 1) * random.unit());
        const double sign = random.sign();
        if (sample >= kLastSample) {
            return taps;
        }
        const double t = sample / kSampleRate;
        const double level = sign * std::exp(-kSixtyDb * t / t60) * std::min(1.0, t / kBuildUp);
        taps.push_back({static_cast<std::size_t>(sample), level});
    }
}

Tails drawTails()
{
    RandomStream random("room");
    Tails tails;
    tails.low = drawTail(0.26, random);
    tails.mid = drawTail(0.21, random);
    tails.high = drawTail(0.14, random);
    return tails;
}

void addTail(const VelvetTail& tail, const std::vector<double>& input, double level,
             std::vector<double>& sound)
{
    for (const Tap& tap : tail) {
        const double tapLevel = level * tap.level;
        for (std::size_t n = tap.delay; n < sound.size(); ++n) {
            sound[n] += tapLevel * input[n - tap.delay];
        }
    }
}

} // namespace

std::vector<double> inRoom(const std::vector<double>& dry, double earlyDb, double tailDb)
{
    static const Tails tails = drawTails();
    std::vector<double> sound = dry;
    for (const Reflection& reflection : kReflections) {
        const std::vector<double> duller = lowPass(dry, reflection.cutoffHz);
        const auto delay = static_cast<std::size_t>(std::round(reflection.ms * 1e-3 * kSampleRate));
        const double level = gain(reflection.db + earlyDb);
        for (std::size_t n = delay; n < sound.size(); ++n) {
            sound[n] += level * duller[n - delay];
        }
    }
    const std::vector<double> low = lowPass(lowPass(dry, kLowBelowHz), kLowBelowHz);
    const std::vector<double> belowHigh = lowPass(dry, kHighAboveHz);
    std::vector<double> mid(dry.size());
    std::vector<double> high(dry.size());
    for (std::size_t n = 0; n < dry.size(); ++n) {
        high[n] = dry[n] - belowHigh[n];
        mid[n] = dry[n] - low[n] - high[n];
    }
    addTail(tails.low, low, gain(tailDb), sound);
    addTail(tails.mid, mid, gain(tailDb), sound);
    addTail(tails.high, high, gain(tailDb), sound);
    return sound;
}

} // namespace tocca::soundpack
