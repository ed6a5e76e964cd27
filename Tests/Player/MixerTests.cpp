#include "Player/MixerStage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace tocca::player {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testkit::clipOf;
using testkit::MixerStage;

const auto kImpulse = clipOf({0.5F});

std::shared_ptr<const PcmClip> steady(float level, std::size_t frames = 48000)
{
    return clipOf(std::vector<float>(frames, level));
}

TEST(Mixer, PlacesAStrokeOneQuantumAfterItsEventToTheFrame)
{
    struct Row {
        const char* name;
        double eventFrames; // after the block's beginning
        std::size_t heardAt;
    };

    constexpr std::array kRows{
        Row{.name = "just after the previous block began", .eventFrames = -64.0, .heardAt = 0},
        Row{.name = "in the middle of the previous block", .eventFrames = -30.0, .heardAt = 34},
        Row{.name = "rounded to the nearest frame", .eventFrames = -30.4, .heardAt = 34},
        Row{.name = "just before this block began", .eventFrames = -1.0, .heardAt = 63},
        Row{.name = "in this block, so it waits for the next", .eventFrames = 10.0, .heardAt = 74},
        Row{.name = "some blocks ahead", .eventFrames = 1000.0, .heardAt = 1064},
        Row{.name = "late, so it begins with the block", .eventFrames = -65.0, .heardAt = 0},
        Row{.name = "almost too late", .eventFrames = -0.0999 * 48000.0, .heardAt = 0},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        MixerStage stage;
        stage.start(kImpulse, {.eventTime = stage.cycle.beginsAt + row.eventFrames / 48000.0});
        for (int block = 0; block < 20; ++block) {
            stage.render(64);
        }
        EXPECT_THAT(stage.soundingFrames(), ElementsAre(row.heardAt));
    }
}

TEST(Mixer, KeepsStrokesAsFarApartAsTheyWerePlayedWhateverTheBlocks)
{
    MixerStage stage;
    const double first = stage.timeOfFrame(10);
    std::vector<std::size_t> expected;
    std::size_t rendered = 0;
    for (std::size_t stroke = 0; stroke < 20; ++stroke) {
        expected.push_back(10 + stroke * 37);
    }
    std::size_t next = 0;
    for (const std::size_t block : {64U, 1U, 63U, 128U, 17U, 256U, 64U, 64U, 511U}) {
        // Requests arrive in time, that is during the quantum before their block.
        for (; next < expected.size() && expected[next] < rendered + block; ++next) {
            stage.start(kImpulse, {.eventTime = first + static_cast<double>(next) * 37.0 / 48000.0});
        }
        stage.render(block);
        rendered += block;
    }
    EXPECT_EQ(stage.soundingFrames(), expected);
}

TEST(Mixer, KeepsSilentWhatHappenedMoreThanATenthOfASecondAgo)
{
    MixerStage stage;
    for (const double age : {0.1001, 5.0, std::numeric_limits<double>::infinity()}) {
        stage.start(kImpulse, {.eventTime = stage.cycle.beginsAt - age});
    }
    stage.render(64);
    EXPECT_THAT(stage.soundingFrames(), IsEmpty());
}

TEST(Mixer, TakesAnEventTimeThatCannotBeForNow)
{
    for (const double time :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e9}) {
        MixerStage stage;
        stage.start(kImpulse, {.eventTime = time});
        stage.render(64);
        stage.render(64);
        EXPECT_THAT(stage.soundingFrames(), ElementsAre(64U));
    }
}

TEST(Mixer, FadesAStoppedVoiceOverTwoMillisecondsWithoutAStep)
{
    MixerStage stage;
    const auto ticket = stage.startNow(steady(0.5F));
    stage.render(64);
    stage.mixer->stop(*ticket);
    stage.render(64);
    stage.render(64);

    for (std::size_t i = 65; i < stage.left.size(); ++i) {
        EXPECT_NEAR(stage.left[i - 1] - stage.left[i], i < 64 + 96 ? 0.5 / 96.0 : 0.0, 1e-6) << i;
    }
    EXPECT_NE(stage.left[64 + 94], 0.0F);
    EXPECT_EQ(stage.left[64 + 95], 0.0F);
}

TEST(Mixer, NeverBeginsAVoiceThatIsStoppedBeforeItsTime)
{
    MixerStage stage;
    const auto unseen = stage.startNow(kImpulse);
    const auto waiting = stage.start(kImpulse, {.eventTime = stage.timeOfFrame(100)});
    stage.mixer->stop(*unseen);
    stage.render(64);
    stage.mixer->stop(*waiting);
    stage.render(64);
    EXPECT_THAT(stage.soundingFrames(), IsEmpty());
}

TEST(Mixer, FadesTheOldestVoiceWhenAThirtySeventhBegins)
{
    MixerStage stage;
    stage.startNow(steady(0.25F));
    for (int voice = 1; voice < 36; ++voice) {
        stage.startNow(steady(0.01F));
    }
    stage.render(64);
    EXPECT_NEAR(stage.left.back(), 0.60, 1e-5);

    stage.startNow(steady(0.01F));
    stage.render(128);
    EXPECT_NEAR(stage.left.back(), 0.36, 1e-5);
}

TEST(Mixer, CutsTheOldestFadingVoicesWhenTheFadingOnesLeaveNoRoom)
{
    MixerStage stage;
    const auto begin = [&stage](int voices, float level) {
        for (int voice = 0; voice < voices; ++voice) {
            stage.startNow(steady(level));
        }
    };
    begin(36, 0.01F);
    stage.render(64);
    begin(34, 0.001F);
    stage.render(1);
    // All those that fade still sound, at 95 of 96 parts.
    EXPECT_NEAR(stage.left.back(), (2 + 34 * 95.0 / 96.0) * 0.01 + 34 * 0.001, 1e-4);

    begin(6, 0.001F);
    stage.render(1);
    // 36 sound and 40 would fade, so the four that began to fade first have ended; six had a frame more than the others.
    EXPECT_NEAR(stage.left.back(), (30 * 94 + 2 * 95) / 96.0 * 0.01 + (36 + 4 * 95 / 96.0) * 0.001, 1e-4);
    stage.render(128);
    EXPECT_NEAR(stage.left.back(), 36 * 0.001, 1e-5);
}

TEST(Mixer, RefusesRequestsThatTheRenderThreadDoesNotTakeAndRecovers)
{
    MixerStage stage;
    for (std::size_t i = 0; i < VoiceExchange::kSlots; ++i) {
        EXPECT_TRUE(stage.startNow(kImpulse));
    }
    EXPECT_FALSE(stage.startNow(kImpulse));

    stage.render(64);
    stage.render(64);
    stage.mixer->reclaim();
    EXPECT_TRUE(stage.startNow(kImpulse));
}

TEST(Mixer, FreesARecordingOnlyWhenItIsReclaimedAndKnowsTicketsThatAreOver)
{
    MixerStage stage;
    auto clip = clipOf({0.5F, 0.5F});
    const std::weak_ptr<const PcmClip> watched = clip;
    const auto ticket = stage.startNow(std::move(clip));
    stage.render(64);
    EXPECT_FALSE(watched.expired());

    stage.mixer->reclaim();
    EXPECT_TRUE(watched.expired());

    // The slot's next user must not be ended by the old ticket.
    const auto next = stage.startNow(steady(0.5F));
    EXPECT_EQ(next->slot, ticket->slot);
    stage.mixer->stop(*ticket);
    stage.render(256);
    EXPECT_EQ(stage.left.back(), 0.5F);
}

TEST(Mixer, TracesWhenEachStrokeWasRendered)
{
    MixerStage stage;
    StrokeTrace trace(2);
    stage.startNow(kImpulse);
    stage.render(64);
    stage.mixer->setTrace(&trace);
    const double event = stage.timeOfFrame(70);
    stage.start(kImpulse, {.eventTime = event});
    stage.render(64);
    EXPECT_FALSE(trace.next());

    stage.render(64);
    const auto entry = trace.next();
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->eventTime, event);
    EXPECT_NEAR(entry->frameTime - event, 64.0 / 48000.0, 1e-5);
    EXPECT_NEAR(entry->renderedAt, stage.cycle.beginsAt - 64.0 / 48000.0, 1e-9);
    EXPECT_FALSE(trace.next());
}

} // namespace
} // namespace tocca::player
