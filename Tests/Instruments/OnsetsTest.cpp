#include "Instruments/Onsets.h"

#include "Instruments/Recording.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace tocca::instruments {
namespace {

using testing::Pointwise;

constexpr double kTapeRate = 48000.0;
constexpr double kBumpToBottomOut = 0.0034; // seconds

/// Interleaved stereo silence that key sounds can be struck into.
class Tape {
public:
    explicit Tape(double seconds)
        : samples(2 * static_cast<std::size_t>(seconds * kTapeRate), 0.0F)
    {}

    /// Adds a sound like a key's: a quiet bump, then the bottom-out, 60 dB of decay in 90 ms.
    void strike(double at, float left, float right, float level = 0.5F)
    {
        burst(at, level * 0.25F * left, level * 0.25F * right);
        burst(at + kBumpToBottomOut, level * left, level * right);
    }

    std::vector<float> samples;

private:
    void burst(double at, float left, float right)
    {
        constexpr double kDecay = 6.9 / 0.09;
        constexpr std::size_t kLength = 9600;
        const auto begin = static_cast<std::size_t>(std::lround(at * kTapeRate));
        const auto end = std::min(samples.size() / 2, begin + kLength);
        for (std::size_t i = begin; i < end; ++i) {
            const double t = static_cast<double>(i - begin) / kTapeRate;
            const double sound = std::exp(-kDecay * t) *
                                 (0.6 * std::cos(2.0 * std::numbers::pi * 900.0 * t) + 0.4 * noise_(engine_));
            samples[2 * i] += static_cast<float>(left * sound);
            samples[2 * i + 1] += static_cast<float>(right * sound);
        }
    }

    std::mt19937 engine_{7};
    std::uniform_real_distribution<double> noise_{-1.0, 1.0};
};

std::vector<double> times(const std::vector<Onset>& onsets)
{
    std::vector<double> result;
    result.reserve(onsets.size());
    for (const Onset& onset : onsets) {
        result.push_back(static_cast<double>(onset.frame) / kTapeRate);
    }
    return result;
}

/// A quiet bump may drown in the tail of the stroke before; then the sound begins with its bottom-out.
MATCHER(IsTheSameStroke, "")
{
    return std::abs(std::get<0>(arg) - std::get<1>(arg)) < kBumpToBottomOut + 0.0005;
}

TEST(Onsets, FindsEachStrokeOnceAtTwentyASecondThoughTheirTailsOverlap)
{
    std::mt19937 engine(11);
    std::uniform_real_distribution<double> interval(0.050, 0.125);
    std::uniform_real_distribution<float> level(0.3F, 0.6F);
    Tape tape(20.0);
    std::vector<double> struck;
    double at = 0.2;
    while (at < 19.5) {
        tape.strike(at, 1.0F, 1.0F, level(engine));
        struck.push_back(at);
        at += interval(engine);
    }
    EXPECT_THAT(times(findOnsets(tape.samples, kTapeRate)), Pointwise(IsTheSameStroke(), struck));
}

TEST(Onsets, AreExactInSilenceAndTellWhereTheSoundIs)
{
    Tape tape(1.0);
    tape.strike(0.2, 1.0F, 0.3F);
    tape.strike(0.6, 0.0F, 0.01F);
    const std::vector<Onset> onsets = findOnsets(tape.samples, kTapeRate);
    ASSERT_EQ(onsets.size(), 2U);
    EXPECT_EQ(onsets[0].frame, 9600U);
    EXPECT_LT(onsets[0].balance(), -0.8);
    EXPECT_EQ(onsets[1].frame, 28800U);
    EXPECT_DOUBLE_EQ(onsets[1].balance(), 1.0);
}

TEST(Onsets, AreNotFoundInSilenceNorInASteadySound)
{
    Tape silence(0.5);
    EXPECT_TRUE(findOnsets(silence.samples, kTapeRate).empty());

    std::vector<float> steady;
    for (int i = 0; i < 24000; ++i) {
        steady.insert(steady.end(), 2, 0.3F * std::sin(0.05F * static_cast<float>(i)));
    }
    EXPECT_EQ(findOnsets(steady, kTapeRate).size(), 1U);
}

TEST(Recording, TellsTheTimeOfEachFrameAcrossAGap)
{
    Recording recording;
    constexpr double kBlock = 64 / kTapeRate;
    recording.samples.resize(384);
    recording.blocks = {
        {.frame = 0, .time = 10.0}, {.frame = 64, .time = 10.5}, {.frame = 128, .time = 10.5 + kBlock}};
    EXPECT_DOUBLE_EQ(recording.timeOf(48), 10.001);
    EXPECT_DOUBLE_EQ(recording.timeOf(112), 10.501);
    EXPECT_EQ(recording.between(10.501, 10.502).data(), recording.samples.data() + 224);
    EXPECT_EQ(recording.between(10.501, 10.502).size(), 96U);
    EXPECT_EQ(recording.between(0.0, 99.0).size(), recording.samples.size());
}

} // namespace
} // namespace tocca::instruments
