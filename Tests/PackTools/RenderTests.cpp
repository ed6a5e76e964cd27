#include "Instruments/EncodedSound.h"
#include "Instruments/TemporaryDirectory.h"
#include "Platform/KeyCodes.h"
#include "Render/Rendering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace tocca::render {
namespace {

namespace fs = std::filesystem;
using instruments::TemporaryDirectory;
constexpr auto kDown = audio::KeyStrokeAction::down;
constexpr auto kUp = audio::KeyStrokeAction::up;

/// Where sound begins after silence. Units: seconds.
std::vector<double> onsetsOf(const std::vector<float>& stereo)
{
    constexpr std::size_t kSilence = kSampleRate / 50;
    std::vector<double> onsets;
    std::size_t silent = kSilence;
    for (std::size_t frame = 0; frame < stereo.size() / 2; ++frame) {
        const bool isSilent = std::abs(stereo[2 * frame]) + std::abs(stereo[2 * frame + 1]) < 0.01F;
        if (!isSilent && silent >= kSilence) {
            onsets.push_back(static_cast<double>(frame) / kSampleRate);
        }
        silent = isSilent ? silent + 1 : 0;
    }
    return onsets;
}

struct Rendering : testing::Test {
    Rendering()
    {
        const auto click =
            instruments::encoded(instruments::Encoding::Wav16, instruments::click(480), 1, kSampleRate);
        TemporaryDirectory::write(directory.path() / "press.wav",
                                  {reinterpret_cast<const char*>(click.data()), click.size()});
        sound.pack = directory.path().string();
    }

    TemporaryDirectory directory;
    Sound sound;
};

TEST_F(Rendering, PutsEachStrokeAtItsTime)
{
    const auto score = parseScore("# a comment\n\n0.25 a\n0.5 space up\n  1.0 Enter\n0.75 backspace down\n");
    ASSERT_TRUE(score) << score.error().describe();
    EXPECT_THAT(score.value(), testing::ElementsAre(ScoredStroke{0.25, platform::key::kA, kDown},
                                                    ScoredStroke{0.5, platform::key::kSpace, kUp},
                                                    ScoredStroke{0.75, platform::key::kDelete, kDown},
                                                    ScoredStroke{1.0, platform::key::kReturn, kDown}));
    const auto heard = rendered(score.value(), sound);
    ASSERT_TRUE(heard) << heard.error().describe();
    EXPECT_THAT(onsetsOf(heard.value()), testing::Pointwise(testing::DoubleNear(0.001), {0.25, 0.75, 1.0}));

    sound.playsReleases = true;
    EXPECT_THAT(onsetsOf(rendered(score.value(), sound).value()),
                testing::Pointwise(testing::DoubleNear(0.001), {0.25, 0.5, 0.75, 1.0}));
}

TEST_F(Rendering, IsTheSameForASeedAndAnotherForAnother)
{
    const auto strokes = typed("Hello, world", 80, 3);
    EXPECT_EQ(strokes, typed("Hello, world", 80, 3));
    EXPECT_NE(strokes, typed("Hello, world", 80, 4));
    EXPECT_EQ(strokes.size(), 2 * std::string("Hello, world").size());
    const auto first = rendered(strokes, sound);
    ASSERT_TRUE(first);
    EXPECT_EQ(first.value(), rendered(strokes, sound).value());
    sound.seed = 2;
    EXPECT_NE(first.value(), rendered(strokes, sound).value());

    for (const char* name : {"a.wav", "a.flac"}) {
        ASSERT_TRUE(writeSound(first.value(), directory.path() / name));
        EXPECT_GT(fs::file_size(directory.path() / name), 1000U);
    }
    EXPECT_FALSE(writeSound(first.value(), directory.path() / "nowhere/a.wav"));
}

TEST_F(Rendering, RefusesWhatMakesNoSense)
{
    for (const char* line :
         {"a", "0.5", "x a", "-1 a", "1e9 a", "nan a", "0.5 nokey", "0.5 a sideways", "0.5x a"}) {
        EXPECT_FALSE(parseScore(line)) << line;
    }
    sound.pack = "/nowhere";
    EXPECT_FALSE(rendered({}, sound));
    TemporaryDirectory::write(directory.path() / "press.wav", "no sound");
    sound.pack = directory.path().string();
    EXPECT_FALSE(rendered(typed("a", 60, 1), sound)) << "what the program prints is an error here";
}

} // namespace
} // namespace tocca::render
