#include "Audio/Conversion/Strike.h"
#include "Conversion/ConversionMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tocca::audio {
namespace {

platform::DecodedSound soundOf(std::vector<float> samples)
{
    return {.channels = {std::move(samples)}, .sampleRate = kToneRate};
}

std::vector<float> delayed(double seconds, const std::vector<float>& samples)
{
    std::vector<float> all(static_cast<std::size_t>(seconds * kToneRate));
    all.insert(all.end(), samples.begin(), samples.end());
    return all;
}

TEST(Strike, BeginsJustBeforeItsOnsetButKeepsLateOnesLate)
{
    struct Row {
        const char* name;
        double silence;
        double expectedStart;
    };

    for (const Row& row : {Row{"at once", 0.0, 0.0}, Row{"within a millisecond", 0.0005, 0.0},
                           Row{"late", 0.050, 0.049}, Row{"very late", 0.200, 0.120}}) {
        SCOPED_TRACE(row.name);
        const auto strike = findStrike(soundOf(delayed(row.silence, tone(1000))), std::nullopt);
        ASSERT_TRUE(strike);
        EXPECT_NEAR(static_cast<double>(strike.value().firstFrame) / kToneRate, row.expectedStart, 0.0001);
        EXPECT_NEAR(strike.value().silenceMs, row.silence * 1e3, 0.1);
    }
}

TEST(Strike, EndsWhereItHasDiedAwayAndFadesAtBothEnds)
{
    auto samples = tone(1000);
    samples.resize(kToneRate); // 0.9 s of silence
    const auto sound = soundOf(samples);
    const auto strike = findStrike(sound, std::nullopt);
    ASSERT_TRUE(strike);
    EXPECT_NEAR(strike.value().seconds, 0.104, 0.002);

    const auto finished = finishedStrike(sound, strike.value(), 1.0);
    ASSERT_EQ(finished.size(), strike.value().frameCount);
    EXPECT_EQ(finished.front(), 0);
    EXPECT_EQ(finished.back(), 0);
    EXPECT_NEAR(finished[48], 32767 * samples[48], 2) << "1 ms on, it is as it was";
}

TEST(Strike, IsRefusedWhereThereIsNone)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();

    struct Row {
        const char* reason;
        Slice slice;
    };

    constexpr Row kRows[] = {
        {"its times make no sense", {-1, 100}},
        {"its times make no sense", {0, 0}},
        {"its times make no sense", {0, -5}},
        {"its times make no sense", {kNaN, 5}},
        {"its times make no sense", {0, kNaN}},
        {"it is longer than any key sounds", {0, 1e9}},
        {"it is longer than any key sounds", {0, kInfinity}},
        {"it begins behind the recording's end", {1e9, 100}},
        {"it begins behind the recording's end", {kInfinity, 100}},
        {"it begins behind the recording's end", {1000, 100}},
        {"it is silent", {500, 100}},
    };
    auto samples = tone(1000);
    samples.resize(kToneRate);
    for (const Row& row : kRows) {
        const auto strike = findStrike(soundOf(samples), row.slice);
        EXPECT_EQ(strike ? "found" : strike.error().describe(), row.reason)
            << row.slice.startMs << ", " << row.slice.lengthMs;
    }
    EXPECT_TRUE(findStrike(soundOf(samples), Slice{0, 9999}))
        << "what ends behind the recording's end is cut there";
    EXPECT_FALSE(findStrike(soundOf(delayed(20, tone(1000))), std::nullopt)) << "a whole recording is no key";
    EXPECT_FALSE(findStrike(soundOf({}), std::nullopt));
}

TEST(Strike, IsMeasuredLikeTheStandardSaysWhateverTheRateAndTheChannels)
{
    // A full-scale sine at 997 Hz in one channel is -3.01 LUFS.
    for (const double rate : {22050.0, 44100.0, 48000.0, 96000.0}) {
        const auto wave = instruments::sine(997.0, rate, static_cast<std::size_t>(rate), 1.0);
        const std::vector<double> channel(wave.begin(), wave.end());
        EXPECT_NEAR(loudness(std::array{channel}, rate), -3.01, 0.1) << rate;
        EXPECT_NEAR(loudness(std::array{channel, channel}, rate), -3.01, 0.1) << rate;
    }
    EXPECT_EQ(loudness(std::vector<std::vector<double>>{std::vector<double>(100)}, 48000.0), -200.691);
}

} // namespace
} // namespace tocca::audio
