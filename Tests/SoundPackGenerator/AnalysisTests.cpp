#include "Analysis/CarriageReturn.h"
#include "Analysis/Clicks.h"
#include "Analysis/Decay.h"
#include "Analysis/Envelope.h"
#include "Analysis/Interpolation.h"
#include "Analysis/Likeness.h"
#include "Analysis/Loudness.h"
#include "Analysis/Onset.h"
#include "Analysis/Spectrum.h"
#include "Synthesis/RandomStream.h"
#include "Synthesis/Rates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tocca::soundpack {
namespace {

using Signal = std::vector<double>;

Signal sine(double hz, double seconds, double t60 = 1e9)
{
    Signal signal(static_cast<std::size_t>(seconds * kSampleRate));
    for (std::size_t n = 0; n < signal.size(); ++n) {
        const double t = static_cast<double>(n) / kSampleRate;
        signal[n] = std::exp(-kSixtyDb * t / t60) * std::sin(2 * std::numbers::pi * hz * t);
    }
    return signal;
}

Signal noise(const char* name, double seconds, double t60 = 1e9)
{
    RandomStream random(name);
    Signal signal(static_cast<std::size_t>(seconds * kSampleRate));
    for (std::size_t n = 0; n < signal.size(); ++n) {
        signal[n] = 0.3 * random.normal() * std::exp(-kSixtyDb * static_cast<double>(n) / kSampleRate / t60);
    }
    return signal;
}

void addAt(Signal& signal, double ms, const Signal& added, double level)
{
    const auto first = static_cast<std::size_t>(ms * 1e-3 * kSampleRate);
    signal.resize(std::max(signal.size(), first + added.size()));
    for (std::size_t n = 0; n < added.size(); ++n) {
        signal[first + n] += level * added[n];
    }
}

TEST(Loudness, FollowsTheStandard)
{
    EXPECT_NEAR(loudness(sine(997, 1)), -3.01, 0.02);
    EXPECT_NEAR(loudness(sine(997, 0.1)), -3.01 - 6.02, 0.1);
    EXPECT_LT(loudness(sine(40, 1)), loudness(sine(997, 1)) - 5);
    EXPECT_GT(loudness(sine(6000, 1)), loudness(sine(997, 1)) + 3);
    EXPECT_LT(loudness(Signal(4800)), -150);
}

TEST(Spectrum, FindsWhereTheEnergyIs)
{
    const Spectrum spectrum = spectrumOf(sine(3000, 0.3));
    EXPECT_NEAR(spectrum.centroidHz, 3000, 30);
    EXPECT_NEAR(spectrum.octavesDb[5], 0, 0.1); // 2 to 4 kHz
    EXPECT_LT(spectrum.octavesDb[2], -30);
    EXPECT_NEAR(spectrumOf(sine(20, 1)).rumbleDb, 0, 0.1);
}

TEST(Spectrum, TellsAToneFromADenseSound)
{
    EXPECT_LT(effectiveBands(sine(1200, 0.3, 0.1)), 3);
    EXPECT_GT(effectiveBands(noise("dense", 0.3, 0.1)), 30);
    EXPECT_GT(tonality(sine(1200, 0.3, 0.5), 0), 10);
    EXPECT_LT(tonality(noise("dense", 0.3, 0.1), 0), 8);
}

TEST(Onset, IsWhereTheSoundPassesItsShareOfThePeak)
{
    Signal late(100);
    addAt(late, 2, sine(2000, 0.1, 0.05), 0.5);
    EXPECT_NEAR(static_cast<double>(onsetOf(late)), 97, 1);
    EXPECT_LE(onsetOf(late, kFirstSoundShare), onsetOf(late));
    EXPECT_EQ(onsetOf(Signal(480)), 480U);

    Signal swelling = sine(2000, 0.1);
    for (std::size_t n = 0; n < swelling.size(); ++n) {
        swelling[n] *= std::min(1.0, static_cast<double>(n) / 480);
    }
    EXPECT_LT(attackMs(late, onsetOf(late)), 0.2);
    EXPECT_GT(attackMs(swelling, onsetOf(swelling)), 0.4);
}

TEST(Decay, IsReadFromTheCurveOfEnergyToCome)
{
    EXPECT_NEAR(earlyDecayMs(noise("decay", 1, 0.2)), 200, 20);
    EXPECT_NEAR(timeAboveMs(sine(2000, 1, 0.3), 0, 20), 100, 3);
    EXPECT_NEAR(timeAboveMs(sine(2000, 1, 0.3), 0, 40), 200, 3);
}

TEST(Clicks, AreFoundWhereTheyAreAndAsLoudAsTheyAre)
{
    Signal twoClicks(4800);
    addAt(twoClicks, 1, sine(5000, 0.02, 0.004), 1.0);
    addAt(twoClicks, 7, sine(5000, 0.02, 0.004), 0.5);
    const Signal level = clickEnvelopeDb(twoClicks);
    const Click first = loudestClick(level, {0, 2.6});
    const Click second = loudestClick(level, {4, 12});
    EXPECT_NEAR(second.atMs - first.atMs, 6, 0.1);
    EXPECT_NEAR(second.db - first.db, -6.02, 0.2);
    EXPECT_LT(valleyBetween(level, first, second), second.db - 20);
    EXPECT_LT(clickEnvelopeDb(sine(100, 0.1))[2400], -40);
}

TEST(Likeness, SeesTheSameSoundThroughLevelAndSmallShifts)
{
    const Signal one = noise("one", 0.15, 0.05);
    Signal shifted;
    addAt(shifted, 0.5, one, 0.25);
    EXPECT_NEAR(correlation(one, shifted), 1, 1e-9);
    EXPECT_LT(correlation(one, noise("two", 0.15, 0.05)), 0.3);

    const Fingerprint print = fingerprintOf(one, 0);
    EXPECT_NEAR(distance(print, fingerprintOf(shifted, 24)), 0, 0.01);
    EXPECT_GT(distance(print, fingerprintOf(sine(1000, 0.15, 0.05), 0)), 10);
    EXPECT_GT(distance(print, fingerprintOf(noise("one", 0.15, 0.15), 0)), 5);
}

TEST(Interpolation, ReadsTheWaveBetweenItsSamples)
{
    // A quarter of the sample rate, sampled half-way up: every sample is 0.71, the wave itself reaches 1.
    Signal wave(960);
    for (std::size_t n = 0; n < wave.size(); ++n) {
        wave[n] = std::sin(std::numbers::pi / 2 * static_cast<double>(n) + std::numbers::pi / 4);
    }
    EXPECT_NEAR(std::abs(between(wave, 480, kInterpolationSteps / 2)), 1, 0.01);
    EXPECT_DOUBLE_EQ(between(wave, 480, 0), wave[480]);
    EXPECT_NEAR(spectrumOf(atRate(sine(1000, 0.5), 1.02)).centroidHz, 1020, 3);
}

TEST(CarriageReturn, NamesBellRatchetAndStop)
{
    Signal made(36000);
    addAt(made, 2, sine(2640, 0.7, 0.8), 0.2);
    for (int tooth = 0; tooth < 48; ++tooth) {
        addAt(made, 55 + 5.0 * tooth, sine(7000, 0.003, 0.002), 0.2);
    }
    addAt(made, 310, sine(400, 0.1, 0.05), 1);
    const CarriageReturn parts = carriageReturnOf(made);
    EXPECT_NEAR(parts.bellT60, 0.8, 0.05);
    EXPECT_NEAR(parts.ratchetHz, 200, 2);
    EXPECT_NEAR(parts.endStopMs, 312, 4);
    EXPECT_LT(parts.bellDb, 0);
}

} // namespace
} // namespace tocca::soundpack
