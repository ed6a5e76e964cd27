#include "Player/EncodedSound.h"
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
    MixerAudioPlayers players{output, stage.clock, *stage.mixer};
    ThreadRoleScope role{ThreadRole::AudioQueue};
    SharedBytes steady = testkit::shared(testkit::floatWav(std::vector<float>(4800, 0.5F)));

    std::unique_ptr<platform::AudioPlayer> make(const SharedBytes& bytes)
    {
        auto made = players.make(bytes);
        EXPECT_TRUE(made) << made.error().describe();
        return std::move(made.value());
    }
};

TEST_F(PlayersTest, PlayAtTheLevelPositionAndTimeTheyAreGiven)
{
    const auto player = make(steady);
    player->setVolume(0.5F);
    player->setPan(-0.5F);
    player->prepareToPlay();
    player->play(stage.timeOfFrame(20));
    stage.render(64);
    EXPECT_EQ(stage.left[19], 0.0F);
    EXPECT_EQ(stage.left[20], 0.25F);
    EXPECT_EQ(stage.right[20], 0.125F);
    EXPECT_EQ(output.activity, 1);
}

TEST_F(PlayersTest, PlayNowWithoutAnEventTime)
{
    const auto player = make(steady);
    player->play(std::nullopt);
    stage.render(64);
    stage.render(64);
    EXPECT_EQ(stage.left[63], 0.0F);
    EXPECT_EQ(stage.left[64], 0.5F);
}

TEST_F(PlayersTest, HeedTheRateOnlyWhenThatIsEnabled)
{
    for (const bool isEnabled : {false, true}) {
        testkit::MixerStage own;
        MixerAudioPlayers others(output, own.clock, *own.mixer);
        auto player = std::move(others.make(steady).value());
        player->setEnableRate(isEnabled);
        player->setRate(2.0F);
        player->play(own.timeOfFrame(0));
        for (int block = 0; block < 100; ++block) {
            own.render(64);
        }
        EXPECT_NEAR(static_cast<double>(own.soundingFrames().size()), isEnabled ? 2400.0 : 4800.0, 1.0);
    }
}

TEST_F(PlayersTest, FadeWhenTheyAreDestroyedAndLeaveLaterVoicesAlone)
{
    auto player = make(steady);
    player->play(stage.timeOfFrame(0));
    stage.render(64);
    player.reset();
    stage.render(96);
    EXPECT_EQ(stage.left[64 + 95], 0.0F);
    EXPECT_GT(stage.left[64 + 40], 0.2F);

    auto finished = make(testkit::shared(testkit::floatWav({0.5F})));
    finished->play(stage.timeOfFrame(0));
    stage.render(64);
    const auto next = make(steady);
    next->play(stage.timeOfFrame(0));
    finished.reset();
    stage.render(192);
    EXPECT_EQ(stage.left.back(), 0.5F);
}

TEST_F(PlayersTest, IgnoreASecondPlayWhileTheySoundAndPlayAgainAfterwards)
{
    const auto player = make(testkit::shared(testkit::floatWav(std::vector<float>(100, 0.25F))));
    player->play(stage.timeOfFrame(0));
    stage.render(64);
    player->play(stage.timeOfFrame(0));
    stage.render(64);
    EXPECT_EQ(stage.left[64], 0.25F);
    EXPECT_EQ(stage.soundingFrames().size(), 100U);

    player->play(stage.timeOfFrame(0));
    stage.render(64);
    EXPECT_EQ(stage.soundingFrames().size(), 164U);
}

TEST_F(PlayersTest, KeepTheirPitchWhenTheDeviceChangesItsRate)
{
    output.rate = 96000.0;
    stage.cycle.sampleRate = 96000.0;
    const auto player = make(steady);
    player->play(stage.timeOfFrame(0));
    for (int block = 0; block < 200; ++block) {
        stage.render(64);
    }
    EXPECT_NEAR(static_cast<double>(stage.soundingFrames().size()), 9600.0, 100.0);
}

TEST_F(PlayersTest, SayWhyBytesCannotBePlayed)
{
    const auto made = players.make(testkit::shared(testkit::Bytes(10)));
    ASSERT_FALSE(made);
    EXPECT_EQ(made.error().describe(), "The file is neither WAV, MP3 nor Ogg Vorbis.");
}

} // namespace
} // namespace tocca::player
