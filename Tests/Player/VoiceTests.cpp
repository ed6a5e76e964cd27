#include "Instruments/EncodedSound.h"
#include "Player/MixerStage.h"
#include "Player/Mixing/Voice.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace tocca::player {
namespace {

using testkit::clipOf;

struct Sound {
    std::vector<float> left;
    std::vector<float> right;
};

/// Everything that a voice adds, asked for in blocks of `block` frames.
Sound rendered(std::shared_ptr<const PcmClip> clip, const platform::Playback& playback,
               const SincKernel& kernel = bestSincKernel(), std::size_t block = 64)
{
    const VoiceRequest request{.clip = std::move(clip), .playback = playback};
    Voice voice(request, 48000.0);
    Sound sound;
    bool goesOn = true;
    while (goesOn) {
        std::vector<float> frames(2 * block, 0.0F);
        goesOn = voice.addTo(frames, kernel);
        for (std::size_t i = 0; i < block; ++i) {
            sound.left.push_back(frames[2 * i]);
            sound.right.push_back(frames[2 * i + 1]);
        }
    }
    return sound;
}

/// How far what is not a sine of `frequency` lies below it. Units: Hz at 48 kHz, dB.
double signalToNoise(std::span<const float> samples, double frequency)
{
    double cc = 0.0;
    double ss = 0.0;
    double cs = 0.0;
    double xc = 0.0;
    double xs = 0.0;
    const auto angle = [frequency](std::size_t i) {
        return 2.0 * std::numbers::pi * frequency * static_cast<double>(i) / 48000.0;
    };
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double c = std::cos(angle(i));
        const double s = std::sin(angle(i));
        cc += c * c;
        ss += s * s;
        cs += c * s;
        xc += samples[i] * c;
        xs += samples[i] * s;
    }
    const double det = cc * ss - cs * cs;
    const double a = (xc * ss - xs * cs) / det;
    const double b = (xs * cc - xc * cs) / det;
    double signal = 0.0;
    double noise = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double fitted = a * std::cos(angle(i)) + b * std::sin(angle(i));
        signal += fitted * fitted;
        noise += (samples[i] - fitted) * (samples[i] - fitted);
    }
    return 10.0 * std::log10(signal / noise);
}

struct NamedKernel {
    const char* name;
    SincKernel kernel;
};

const std::array kKernels{NamedKernel{.name = "baseline", .kernel = baselineSincKernel()},
                          NamedKernel{.name = "best", .kernel = bestSincKernel()}};

TEST(Voice, CopiesEveryFrameUnchangedAtTheRecordedSpeed)
{
    const auto noise = instruments::click(1000);
    for (const std::size_t block : {1U, 7U, 64U, 333U, 4096U}) {
        SCOPED_TRACE(block);
        auto sound = rendered(clipOf(noise), {}, bestSincKernel(), block);
        sound.left.resize(noise.size());
        sound.right.resize(noise.size());
        EXPECT_EQ(sound.left, noise);
        EXPECT_EQ(sound.right, noise);
    }
}

TEST(Voice, KeepsTonesPureAndInTuneAtOtherSpeeds)
{
    for (const auto& [name, kernel] : kKernels) {
        for (const double frequency : {1000.0, 5000.0}) {
            for (const float rate : {0.82F, 0.903F, 0.999F, 1.03F, 1.071F, 1.2F, 1.352F}) {
                SCOPED_TRACE(testing::Message() << name << ", " << frequency << " Hz at " << rate);
                const auto clip = std::make_shared<const PcmClip>(
                    instruments::sine(frequency, 48000.0, 24000),
                    instruments::sine(frequency, 48000.0, 24000, 0.25), 48000.0);
                const auto sound = rendered(clip, {.rate = rate}, kernel);
                const auto middle = [](const std::vector<float>& side) {
                    return std::span(side).subspan(100, 16000);
                };
                EXPECT_GT(signalToNoise(middle(sound.left), frequency * static_cast<double>(rate)), 80.0);
                EXPECT_GT(signalToNoise(middle(sound.right), frequency * static_cast<double>(rate)), 80.0);
            }
        }
    }
}

TEST(Voice, ReadsTheSameWithOneChannelAsWithTwoAndWhateverTheBlocks)
{
    const auto left = instruments::click(5000);
    const auto right = instruments::sine(3000, 48000, 5000);
    for (const auto& [name, kernel] : kKernels) {
        SCOPED_TRACE(name);
        const auto both = std::make_shared<const PcmClip>(left, right, 48000.0);
        const auto whole = rendered(both, {.rate = 0.97F}, kernel, 8192);
        const auto single = rendered(clipOf(right), {.rate = 0.97F}, kernel, 8192);
        auto pieces = rendered(both, {.rate = 0.97F}, kernel, 13);
        pieces.left.resize(whole.left.size(), 0.0F);
        pieces.right.resize(whole.right.size(), 0.0F);
        EXPECT_EQ(single.left, whole.right);
        EXPECT_EQ(pieces.left, whole.left);
        EXPECT_EQ(pieces.right, whole.right);
    }
}

TEST(Voice, LastsAsLongAsItsSpeedSays)
{
    const auto clip = clipOf(std::vector<float>(1000, 0.5F));
    for (const auto& [rate, frames] : {std::pair{1.0F, 1000}, {0.5F, 2000}, {1.25F, 800}, {1.3F, 770}}) {
        Voice voice({.clip = clip, .playback = {.rate = rate}}, 48000.0);
        std::array<float, 2> frame{};
        int count = 1;
        while (voice.addTo(frame, bestSincKernel())) {
            ++count;
        }
        EXPECT_EQ(count, frames) << rate;
    }
}

TEST(Voice, StaysWithinTheRecordingsMemoryAtAnySpeed)
{
    // The speed beyond the players' range stands for a recording of a far higher rate than the device's.
    for (const float rate : {-1.0F, 0.0F, 0.3F, 3.9F, 1e30F, std::numeric_limits<float>::quiet_NaN()}) {
        for (const double recorded : {4000.0, 48000.0, 384000.0}) {
            for (const std::size_t length : {1U, 2U, 63U, 100U}) {
                for (const auto& [name, kernel] : kKernels) {
                    const auto clip = std::make_shared<const PcmClip>(
                        std::vector<float>(length, 0.5F), std::vector<float>(length, 0.5F), recorded);
                    for (const float sample : rendered(clip, {.rate = rate}, kernel).left) {
                        ASSERT_LE(std::abs(sample), 0.8F);
                    }
                }
            }
        }
    }
}

TEST(Voice, KeepsOutOfTheTrebleWhatAHighSpeedWouldFoldBack)
{
    // At 1.35 times the speed, 22 kHz would come out at 48 − 29.7 = 18.3 kHz.
    const auto sound = rendered(clipOf(instruments::sine(22000, 48000, 24000, 1.0)), {.rate = 1.35F});
    double sum = 0.0;
    for (std::size_t i = 100; i < 16000; ++i) {
        sum += static_cast<double>(sound.left[i]) * static_cast<double>(sound.left[i]);
    }
    EXPECT_LT(10.0 * std::log10(sum / 15900.0 / 0.5), -12.0);
}

TEST(SideGains, FollowABalanceControlAndIgnoreWhatIsNoLevel)
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

    struct Row {
        const char* name;
        float volume;
        float pan;
        float left;
        float right;
    };

    constexpr std::array kRows{
        Row{"the centre leaves both sides", 1.0F, 0.0F, 1.0F, 1.0F},
        Row{"far left", 1.0F, -1.0F, 1.0F, 0.0F},
        Row{"far right", 1.0F, 1.0F, 0.0F, 1.0F},
        Row{"half left", 0.8F, -0.5F, 0.8F, 0.4F},
        Row{"a quarter right", 1.0F, 0.25F, 0.75F, 1.0F},
        Row{"beyond the ends", 2.0F, -3.0F, 1.0F, 0.0F},
        Row{"negative volume", -0.2F, 0.0F, 0.0F, 0.0F},
        Row{"no number", kNan, kNan, 0.0F, 0.0F},
        Row{"pan is no number", 1.0F, kNan, 1.0F, 1.0F},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        const SideGains gains = sideGains(row.volume, row.pan);
        EXPECT_FLOAT_EQ(gains.left, row.left);
        EXPECT_FLOAT_EQ(gains.right, row.right);
    }
}

TEST(SideGains, ReachBothSidesOfEveryFrame)
{
    const auto mono =
        rendered(clipOf(std::vector<float>(67, 0.5F)), {.volume = 0.5F, .pan = 0.5F}, bestSincKernel(), 67);
    EXPECT_EQ(mono.left, std::vector<float>(67, 0.125F));
    EXPECT_EQ(mono.right, std::vector<float>(67, 0.25F));

    const auto clip = std::make_shared<const PcmClip>(std::vector<float>(67, 0.5F),
                                                      std::vector<float>(67, -0.25F), 48000.0);
    const auto stereo = rendered(clip, {.pan = -0.5F}, bestSincKernel(), 67);
    EXPECT_EQ(stereo.left, std::vector<float>(67, 0.5F));
    EXPECT_EQ(stereo.right, std::vector<float>(67, -0.125F));
}

} // namespace
} // namespace tocca::player
