#include "Instruments/EncodedSound.h"
#include "Player/Decoding/PcmClip.h"
#include "Player/Decoding/Resampler.h"
#include "Player/Mixing/Limiter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tocca::player {
namespace {

constexpr double kRate = 48000.0;

/// Both sides of a limiter's output for the same mono input, in blocks of the given sizes in turn.
std::vector<float> limited(const std::vector<float>& input, const std::vector<std::size_t>& blocks)
{
    Limiter limiter;
    std::vector<float> output;
    for (std::size_t at = 0, turn = 0; at < input.size(); ++turn) {
        const std::size_t count = std::min(blocks[turn % blocks.size()], input.size() - at);
        std::vector<float> frames;
        for (std::size_t i = at; i < at + count; ++i) {
            frames.push_back(input[i]);
            frames.push_back(-input[i]);
        }
        limiter.process(frames, kRate);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(frames[2 * i], -frames[2 * i + 1]);
            output.push_back(frames[2 * i]);
        }
        at += count;
    }
    return output;
}

float highest(const std::vector<float>& samples)
{
    float peak = 0.0F;
    for (const float sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

/// The peak between the samples as another resampler sees it. Units: dB full scale.
double truePeakDb(const std::vector<float>& samples)
{
    const auto fine = resampled(PcmClip(samples, kRate), 8 * kRate);
    const auto channel = fine.value().channel(0);
    return 20.0 * std::log10(static_cast<double>(highest({channel.begin(), channel.end()})));
}

std::vector<float> noise(std::size_t frames, float level)
{
    std::vector<float> samples(frames);
    std::uint32_t state = 7;
    for (float& sample : samples) {
        state = state * 1664525U + 1013904223U;
        sample = level * (static_cast<float>(state >> 8U) / 8388608.0F - 1.0F);
    }
    return samples;
}

/// Noisy strokes that overlap, as many keys struck together add up to; `smoothing` 0 keeps the noise white, which is harder
/// on a limiter than any recording.
std::vector<float> strokes(float level, float smoothing)
{
    auto stroke = instruments::click(3000, level);
    float once = 0.0F;
    float twice = 0.0F;
    for (float& sample : stroke) {
        once = smoothing * once + (1.0F - smoothing) * sample;
        twice = smoothing * twice + (1.0F - smoothing) * once;
        sample = (1.0F + 2.0F * smoothing) * twice;
    }
    std::vector<float> samples(9000, 0.0F);
    for (std::size_t at = 100; at + stroke.size() < samples.size(); at += 503) {
        for (std::size_t i = 0; i < stroke.size(); ++i) {
            samples[at + i] += stroke[i];
        }
    }
    return samples;
}

const std::vector<std::vector<std::size_t>> kBlockings{{64}, {1}, {17, 64, 3}, {256}, {1000}};

TEST(Limiter, PassesWhatStaysADecibelBelowFullScaleBitForBit)
{
    const std::array inputs{
        noise(5000, 0.45F), instruments::click(5000, 0.4F), instruments::sine(50, kRate, 5000, 0.89),
        instruments::sine(997, kRate, 5000, 0.89), instruments::sine(3001, kRate, 5000, 0.89)};
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        for (const auto& blocks : kBlockings) {
            EXPECT_EQ(limited(inputs[i], blocks), inputs[i])
                << "input " << i << " in blocks of " << blocks.front();
        }
    }
}

TEST(Limiter, NeverLetsASampleOverTheCeiling)
{
    for (const float level : {1.0F, 40.0F}) {
        for (const auto& blocks : kBlockings) {
            for (const auto& input :
                 {noise(5000, level), strokes(level, 0.45F), instruments::sine(60, kRate, 5000, level)}) {
                EXPECT_LE(highest(limited(input, blocks)), Limiter::kCeiling);
            }
        }
    }
}

TEST(Limiter, HoldsTheTruePeakOfSteadyTonesWithinATenthOfADecibel)
{
    // At a quarter of the rate and 45 degrees every sample is 3 dB below the peak.
    std::vector<float> quarter(5000);
    for (std::size_t i = 0; i < quarter.size(); ++i) {
        quarter[i] = (i / 2) % 2 == 0 ? 0.9F : -0.9F;
    }
    for (std::size_t i = 0; i < 64; ++i) {
        quarter[i] *= static_cast<float>(i) / 64.0F;
    }
    EXPECT_GT(truePeakDb(quarter), 1.5);
    for (const auto& blocks : kBlockings) {
        if (blocks.front() != 1) {
            EXPECT_LT(truePeakDb(limited(quarter, blocks)), -0.4) << blocks.front();
        }
    }
}

TEST(Limiter, HoldsTheTruePeakOfStrokes)
{
    struct Row {
        const char* name;
        float level;
        float smoothing;
        double highestDb;
    };

    constexpr std::array kRows{
        Row{.name = "recordings, 6 dB over", .level = 0.7F, .smoothing = 0.45F, .highestDb = -0.35},
        Row{.name = "recordings, 12 dB over", .level = 1.5F, .smoothing = 0.45F, .highestDb = 0.0},
        Row{.name = "recordings, 24 dB over", .level = 6.0F, .smoothing = 0.45F, .highestDb = 0.3},
        Row{.name = "white noise, 14 dB over", .level = 1.5F, .smoothing = 0.0F, .highestDb = 0.8},
    };
    for (const Row& row : kRows) {
        const auto input = strokes(row.level, row.smoothing);
        for (const std::size_t block : {64U, 128U, 256U, 1000U}) {
            SCOPED_TRACE(testing::Message() << row.name << ", blocks of " << block);
            const auto output = limited(input, {block});
            EXPECT_LT(truePeakDb(output), row.highestDb);
            EXPECT_GT(truePeakDb(output), -1.2) << "limits more than it must";
        }
    }
}

TEST(Limiter, BendsALoudWaveWithoutASingleStep)
{
    for (const double frequency : {50.0, 200.0, 1000.0}) {
        for (const auto& blocks : kBlockings) {
            auto input = instruments::sine(frequency, kRate, 9000, 0.9);
            for (std::size_t i = 3000; i < 4000; ++i) {
                input[i] *= 1.0F + 3.0F * static_cast<float>(i - 3000) / 1000.0F;
            }
            for (std::size_t i = 4000; i < 6000; ++i) {
                input[i] *= 4.0F;
            }
            for (std::size_t i = 6000; i < 7000; ++i) {
                input[i] *= 4.0F - 3.0F * static_cast<float>(i - 6000) / 1000.0F;
            }
            const auto output = limited(input, blocks);
            float widestIn = 0.0F;
            float widestOut = 0.0F;
            for (std::size_t i = 1; i < input.size(); ++i) {
                widestIn = std::max(widestIn, std::abs(input[i] - input[i - 1]));
                widestOut = std::max(widestOut, std::abs(output[i] - output[i - 1]));
            }
            EXPECT_LE(widestOut, widestIn) << frequency << " Hz in blocks of " << blocks.front();
        }
    }
}

TEST(Limiter, RecoversWithinTwoTenthsOfASecondAndIsThenTransparentAgain)
{
    auto input = instruments::sine(1000, kRate, 48000, 0.5);
    for (std::size_t i = 0; i < 4800; ++i) {
        input[i] *= 10.0F;
    }
    const auto output = limited(input, {64});
    for (std::size_t i = 4800; i < input.size(); ++i) {
        if (i < 5800) {
            ASSERT_LE(std::abs(output[i]), std::abs(input[i]));
        } else if (i > 4800 + 9600) {
            ASSERT_EQ(output[i], input[i]);
        }
    }
    EXPECT_LT(std::abs(output[4900]), 0.5F * std::abs(input[4900]));
}

} // namespace
} // namespace tocca::player
