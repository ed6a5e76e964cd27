#include "Instruments/EncodedSound.h"
#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/Downmix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace tocca::player {
namespace {

using instruments::Bytes;
using instruments::encoded;
using instruments::Encoding;
using instruments::floatWav;
using instruments::wavFile;

float peakOf(std::span<const float> samples)
{
    float peak = 0.0F;
    for (const float sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

TEST(Decoder, ReadsEveryFormatThatPacksAreMadeOf)
{
    struct Row {
        const char* name;
        Encoding encoding;
        int channels;
        int sampleRate;
        double lengthTolerance; // frames; encoders pad
    };

    constexpr std::array kRows{
        Row{"WAV", Encoding::Wav16, 1, 44100, 0},
        Row{"WAV at 4 kHz", Encoding::Wav16, 1, 4000, 0},
        Row{"WAV at 384 kHz", Encoding::Wav16, 2, 384000, 0},
        Row{"Ogg", Encoding::OggVorbis, 2, 48000, 0},
        Row{"MP3", Encoding::Mp3, 1, 44100, 2400},
        Row{"stereo MP3", Encoding::Mp3, 2, 48000, 2400},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        std::vector<float> samples;
        for (const float sample : instruments::sine(500, row.sampleRate, 9000)) {
            samples.push_back(sample);
            if (row.channels == 2) {
                samples.push_back(-0.5F * sample);
            }
        }
        const auto clip = decode(encoded(row.encoding, samples, row.channels, row.sampleRate));
        ASSERT_TRUE(clip) << clip.error().describe();
        EXPECT_EQ(clip.value().sampleRate(), row.sampleRate);
        EXPECT_EQ(clip.value().channelCount(), static_cast<std::size_t>(row.channels));
        EXPECT_NEAR(static_cast<double>(clip.value().frameCount()), 9000, row.lengthTolerance);
        EXPECT_NEAR(peakOf(clip.value().channel(0)), 0.5, 0.05);
        if (row.channels == 2) {
            EXPECT_NEAR(peakOf(clip.value().channel(1)), 0.25, 0.05);
        }
    }
}

TEST(Decoder, RefusesWhatItCannotPlayWithASentence)
{
    const Bytes silence(400, std::byte{0});
    const Bytes wav = floatWav(instruments::click(1000));
    const Bytes ogg = encoded(Encoding::OggVorbis, instruments::click(4000));
    const Bytes mp3 = encoded(Encoding::Mp3, instruments::click(4000));
    const auto first = [](const Bytes& file, std::size_t count) {
        return Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(count));
    };
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();

    struct Row {
        const char* name;
        Bytes file;
        const char* sentence;
    };

    const std::array rows{
        Row{"empty", {}, "The file is empty."},
        Row{"one byte", Bytes(1), "neither WAV, MP3 nor Ogg Vorbis"},
        Row{"text", Bytes(5000, std::byte{'x'}), "neither WAV, MP3 nor Ogg Vorbis"},
        Row{"another format", encoded(Encoding::Aiff, instruments::click(1000)), "neither"},
        Row{"another codec", encoded(Encoding::Flac, instruments::click(1000)), "neither"},
        Row{"too large", Bytes((std::size_t{32} << 20U) + 1), "larger than 32 MB"},
        Row{"no header behind the name", first(wav, 12), "damaged"},
        Row{"half a header", first(wav, 30), "damaged"},
        Row{"a header alone", first(wav, 44), "no sound"},
        Row{"the beginning of an Ogg", first(ogg, 60), "damaged"},
        Row{"an MP3 without a whole frame", first(mp3, 50), ""},
        Row{"0 Hz", wavFile({.sampleRate = 0}, silence), ""},
        Row{"3,999 Hz", wavFile({.sampleRate = 3999}, silence), "3999 Hz"},
        Row{"385 kHz", wavFile({.sampleRate = 385000}, silence), "385000 Hz"},
        Row{"2 GHz", wavFile({.sampleRate = 0x7FFFFFFF}, silence), " Hz"},
        Row{"no channel", wavFile({.channels = 0}, silence), ""},
        Row{"9 channels", wavFile({.channels = 9}, silence), "9 channels"},
        Row{"1,024 channels", wavFile({.channels = 1024}, silence), ""},
        Row{"65,535 channels", wavFile({.channels = 65535}, silence), ""},
        Row{"an unknown codec", wavFile({.format = 0x1234}, silence), "damaged"},
        Row{"NaN", floatWav({0.1F, kNan, 0.1F}), "not numbers"},
        Row{"infinity", floatWav({0.1F, -kInfinity, 0.1F}), "not numbers"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto clip = decode(row.file);
        ASSERT_FALSE(clip);
        EXPECT_NE(clip.error().describe().find(row.sentence), std::string::npos) << clip.error().describe();
        EXPECT_TRUE(clip.error().describe().ends_with("."));
    }
}

TEST(Decoder, KeepsWhatComesBeforeTheDamage)
{
    auto wav = floatWav(instruments::click(1000));
    wav.resize(44 + 4 * 600 + 3);
    const auto cut = decode(wav);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut.value().frameCount(), 600U);

    auto ogg = encoded(Encoding::OggVorbis, instruments::sine(440, 44100, 400000)); // several pages
    ogg.resize(ogg.size() * 3 / 4);
    const auto shorter = decode(ogg);
    ASSERT_TRUE(shorter) << shorter.error().describe();
    EXPECT_NEAR(static_cast<double>(shorter.value().frameCount()), 300000, 100000);
}

TEST(Decoder, CutsRecordingsAtTheLimitsWhateverTheyClaim)
{
    const auto wav = floatWav(instruments::click(10000));
    EXPECT_EQ(decode(wav, {.seconds = 0.1}).value().frameCount(), 4800U);
    EXPECT_EQ(decode(wav, {.frames = 77}).value().frameCount(), 77U);

    // Half a minute of silence and more takes Vorbis a few kilobytes.
    const auto ogg = encoded(Encoding::OggVorbis, std::vector<float>(320000, 0.0F), 1, 8000);
    EXPECT_LT(ogg.size(), 50000U);
    EXPECT_EQ(decode(ogg).value().frameCount(), 30U * 8000U);
}

TEST(Decoder, TamesSamplesFarBeyondFullScaleAndFarBelowHearing)
{
    const auto clip =
        decode(floatWav({1.5F, -1e30F, 1e30F, 1e-30F, std::numeric_limits<float>::denorm_min()}));
    const auto samples = clip.value().channel(0);
    EXPECT_EQ(std::vector(samples.begin(), samples.end()), (std::vector{1.5F, -4.0F, 4.0F, 0.0F, 0.0F}));
}

TEST(Decoder, KeepsTwoEqualChannelsAsOneAndDifferentOnesApart)
{
    EXPECT_EQ(decode(floatWav({0.1F, 0.1F, -0.2F, -0.2F}, 2)).value().channelCount(), 1U);
    EXPECT_EQ(decode(floatWav({0.1F, 0.1F, -0.2F, -0.3F}, 2)).value().channelCount(), 2U);
}

TEST(Decoder, MixesMoreThanTwoChannelsToTheirSides)
{
    struct Row {
        const char* name;
        std::vector<float> frame;
        float left;
        float right;
    };

    const std::array rows{
        Row{.name = "front left of 5.1", .frame = {1, 0, 0, 0, 0, 0}, .left = 0.414F, .right = 0.0F},
        Row{.name = "centre of 5.1", .frame = {0, 0, 1, 0, 0, 0}, .left = 0.293F, .right = 0.293F},
        Row{.name = "low frequencies of 5.1", .frame = {0, 0, 0, 1, 0, 0}, .left = 0.0F, .right = 0.0F},
        Row{.name = "right surround of 5.1", .frame = {0, 0, 0, 0, 0, 1}, .left = 0.0F, .right = 0.293F},
        Row{.name = "everything of 7.1", .frame = std::vector<float>(8, 1.0F), .left = 1.0F, .right = 1.0F},
        Row{.name = "right of quadraphony", .frame = {0, 1, 0, 0}, .left = 0.0F, .right = 0.586F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto frames = row.frame;
        frames.insert(frames.end(), row.frame.size(), 0.0F);
        frames[row.frame.size()] = 0.5F; // keeps the sides apart
        const auto clip = decode(floatWav(frames, static_cast<std::uint16_t>(row.frame.size())));
        ASSERT_TRUE(clip) << clip.error().describe();
        EXPECT_NEAR(clip.value().channel(0)[0], row.left, 0.001);
        EXPECT_NEAR(clip.value().channel(1)[0], row.right, 0.001);
    }
    // Vorbis has the centre in the middle.
    EXPECT_EQ(downmixOf(SoundFormat::OggVorbis, 3).right[2], downmixOf(SoundFormat::Wav, 3).right[1]);
}

TEST(Decoder, SaysNothingOnStandardErrorOfDamagedFiles)
{
    const Bytes whole = encoded(Encoding::Mp3, instruments::sine(440, 22050, 20000));
    testing::internal::CaptureStderr();
    for (std::size_t at = 100; at < whole.size(); at += 61) {
        Bytes damaged = whole;
        damaged[at] ^= std::byte{0xFF};
        damaged.resize(whole.size() - at / 8);
        (void)decode(damaged);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Decoder, TrimsTheSilenceThatAnMp3EncoderPutsInFrontAndNoOther)
{
    std::vector<float> late(4000, 0.0F);
    const auto stroke = instruments::click(8000);
    late.insert(late.end(), stroke.begin(), stroke.end());

    const auto onset = [](const PcmClip& clip) {
        const auto samples = clip.channel(0);
        return std::find_if(samples.begin(), samples.end(),
                            [](float sample) { return std::abs(sample) > 0.05F; }) -
               samples.begin();
    };
    // 4,000 frames are 91 ms, of which at most 60 go.
    EXPECT_NEAR(static_cast<double>(onset(decode(encoded(Encoding::Mp3, stroke)).value())), 13, 40);
    EXPECT_NEAR(static_cast<double>(onset(decode(encoded(Encoding::Mp3, late)).value())), 4000 - 2646 + 13,
                1300);
    EXPECT_EQ(onset(decode(encoded(Encoding::Wav16, late)).value()),
              onset(decode(encoded(Encoding::Wav16, stroke)).value()) + 4000);

    // A recording that is silent throughout stays what it is.
    EXPECT_GT(decode(encoded(Encoding::Mp3, std::vector<float>(1000, 0.0F))).value().frameCount(), 900U);
}

} // namespace
} // namespace tocca::player
