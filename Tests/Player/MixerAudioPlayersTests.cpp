#include "Instruments/EncodedSound.h"
#include "Player/MixerAudioPlayers.h"
#include "Player/MixerStage.h"

#include <gtest/gtest.h>

namespace tocca::player {
namespace {

class FakeOutput final : public AudioOutput {
public:
    void start(RenderSource& /*source*/) override {}

    [[nodiscard]] double sampleRate() const noexcept override { return rate; }

    void noteActivity() noexcept override { ++activity; }

    double rate = 48000.0;
    int activity = 0;
};

/// Players on a mixer, with the calling thread as the audio queue.
struct PlayersTest : testing::Test {
    testkit::MixerStage stage;
    FakeOutput output;
    MixerAudioPlayers players{output, *stage.mixer};
    ThreadRoleScope role{ThreadRole::AudioQueue};
    SharedBytes steady = instruments::shared(instruments::floatWav(std::vector<float>(4800, 0.5F)));

    std::unique_ptr<platform::AudioPlayer> play(const SharedBytes& bytes, const platform::Playback& playback)
    {
        auto player = players.play(bytes, playback);
        EXPECT_TRUE(player) << player.error().describe();
        return std::move(player.value());
    }
};

TEST_F(PlayersTest, PlayAtTheLevelPositionSpeedAndTimeTheyAreGiven)
{
    const auto player =
        play(steady, {.rate = 2.0F, .volume = 0.5F, .pan = -0.5F, .eventTime = stage.timeOfFrame(20)});
    for (int block = 0; block < 100; ++block) {
        stage.render(64);
    }
    EXPECT_EQ(stage.left[19], 0.0F);
    EXPECT_NEAR(stage.left[60], 0.25, 1e-3);
    EXPECT_NEAR(stage.right[60], 0.125, 1e-3);
    EXPECT_NEAR(static_cast<double>(stage.soundingFrames().size()), 2400.0, 1.0);
    EXPECT_EQ(output.activity, 1);
}

TEST_F(PlayersTest, PlayNowWithoutAnEventTime)
{
    const auto player = play(steady, {});
    stage.render(64);
    stage.render(64);
    EXPECT_EQ(stage.left[63], 0.0F);
    EXPECT_EQ(stage.left[64], 0.5F);
}

TEST_F(PlayersTest, FadeWhenTheyAreDestroyed)
{
    auto player = play(steady, {.eventTime = stage.timeOfFrame(0)});
    stage.render(64);
    player.reset();
    stage.render(96);
    EXPECT_EQ(stage.left[64 + 95], 0.0F);
    EXPECT_GT(stage.left[64 + 40], 0.2F);
}

TEST_F(PlayersTest, KeepTheirPitchWhenTheDeviceChangesItsRate)
{
    output.rate = 96000.0;
    stage.cycle.sampleRate = 96000.0;
    const auto player = play(steady, {.eventTime = stage.timeOfFrame(0)});
    for (int block = 0; block < 200; ++block) {
        stage.render(64);
    }
    EXPECT_NEAR(static_cast<double>(stage.soundingFrames().size()), 9600.0, 100.0);
}

TEST_F(PlayersTest, SayWhyBytesCannotBePlayed)
{
    const auto player = players.play(instruments::shared(instruments::Bytes(10)), {});
    ASSERT_FALSE(player);
    EXPECT_EQ(player.error().describe(), "The file is neither WAV, MP3 nor Ogg Vorbis.");
}

} // namespace
} // namespace tocca::player
