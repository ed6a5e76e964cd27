#include "KeyboardFixture.h"
#include "Platform/KeyCodes.h"

#include <optional>
#include <vector>

namespace tocca::keyboard {
namespace {

using platform::key::kA;
using platform::key::kB;
using platform::key::kSpace;

struct StatisticsTest : KeyboardFixture {
    StatisticsTest() { startMonitor(); }

    void strike(std::uint16_t code)
    {
        host.eventTaps().press(code);
        host.eventTaps().release(code);
    }
};

TEST_F(StatisticsTest, DropsContactChatterOfOneKeyAndDirection)
{
    strike(kA);
    host.advance(0.020);
    host.eventTaps().press(kA);
    host.settle();
    EXPECT_EQ(heard(), "pr");
    EXPECT_EQ(monitor->keystrokeCount.get(), 1);

    host.advance(0.016);
    host.eventTaps().release(kA);
    EXPECT_EQ(heard(), "r") << "measured from the last accepted event, each direction for itself";
    host.eventTaps().press(kA);
    EXPECT_EQ(heard(), "p");

    host.advance(0.010);
    host.eventTaps().press(kB);
    EXPECT_EQ(heard(), "p") << "another key is no chatter";
}

TEST_F(StatisticsTest, DropsModifierChatterToo)
{
    for (const std::uint64_t flags : {platform::flag::kShift, std::uint64_t{0}, platform::flag::kShift}) {
        host.eventTaps().changeFlags(platform::key::kLeftShift, flags);
        host.advance(0.010);
    }
    EXPECT_EQ(heard(), "pr");
}

TEST_F(StatisticsTest, ShowsAPressAndForgetsIt)
{
    strike(kSpace);
    EXPECT_EQ(monitor->keystrokeCount.get(), 0) << "published on the main thread, not by the press itself";
    host.settle();
    EXPECT_EQ(monitor->keystrokeCount.get(), 1);
    EXPECT_EQ(monitor->currentWPM.get(), 2);
    EXPECT_EQ(monitor->lastPressedKey.get(), "Key 49");
    EXPECT_EQ(monitor->activeKeyCode.get(), kSpace);

    host.advance(0.119);
    EXPECT_EQ(monitor->activeKeyCode.get(), kSpace);
    host.advance(0.002);
    EXPECT_EQ(monitor->activeKeyCode.get(), std::nullopt);
    host.advance(4.8);
    EXPECT_EQ(monitor->currentWPM.get(), 2);
    host.advance(0.9);
    EXPECT_EQ(monitor->currentWPM.get(), 0);
}

TEST_F(StatisticsTest, LightsTheNewestKeyOnly)
{
    std::vector<std::optional<std::uint16_t>> lit;
    const auto link = monitor->activeKeyCode.onChange([&lit](const auto& code) { lit.push_back(code); });
    host.eventTaps().press(kA);
    host.advance(0.06);
    host.eventTaps().press(kB);
    host.advance(0.07);
    EXPECT_EQ(monitor->activeKeyCode.get(), kB) << "the older key's clearing leaves the newer one lit";
    host.advance(0.06);
    EXPECT_EQ(lit, (std::vector<std::optional<std::uint16_t>>{kA, kB, std::nullopt}));
}

TEST_F(StatisticsTest, CountsWordsOverFiveSeconds)
{
    for (std::uint16_t code = 0; code < 13; ++code) {
        strike(code);
        host.advance(0.05);
    }
    EXPECT_EQ(monitor->currentWPM.get(), 31);
    EXPECT_EQ(monitor->keystrokeCount.get(), 13);

    int published = 0;
    const auto link = monitor->currentWPM.onChange([&published](const auto&) { ++published; });
    host.advance(4.0);
    EXPECT_EQ(published, 0) << "an unchanged figure is not published again";
    host.advance(2.0);
    EXPECT_EQ(monitor->currentWPM.get(), 0);
    EXPECT_LE(published, 2);
}

TEST(TypingSpeed, KeepsAPressThatIsExactlyFiveSecondsOldAndSurvivesAnIdleMainThread)
{
    TypingSpeed speed;
    speed.add(100.0);
    speed.prune(105.0);
    EXPECT_EQ(speed.wordsPerMinute(), 2);
    speed.prune(105.001);
    EXPECT_EQ(speed.wordsPerMinute(), 0);

    for (std::size_t i = 0; i < 2 * TypingSpeed::kCapacity; ++i) {
        speed.add(200.0);
    }
    EXPECT_EQ(speed.wordsPerMinute(), static_cast<std::int64_t>(TypingSpeed::kCapacity / 5.0 * 12.0));
    speed.prune(300.0);
    EXPECT_EQ(speed.wordsPerMinute(), 0);
}

} // namespace
} // namespace tocca::keyboard
