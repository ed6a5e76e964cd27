#include "Instruments/ControllersOnMemory.h"
#include "UI/NotchHUD/Waveform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tocca::ui {
namespace {

using platform::Rect;
using platform::Screen;

struct NotchHUD : ControllersOnMemory, testing::Test {
    NotchHUD()
    {
        underglow.isEnabled.set(false);
        host.settle();
        notchHUD.setup();
    }

    std::vector<std::shared_ptr<platform::memory::PanelRecord>>& panels() { return host.panels().made; }

    platform::memory::PanelRecord& panel() { return *panels().at(0); }

    void strike()
    {
        engine.playKey(0, audio::KeyStrokeAction::down);
        host.settle();
    }

    bool writtenDefault() { return host.userDefaults().values.at("NotchHUD_Enabled"); }
};

TEST_F(NotchHUD, WritesEverySwitchToTheDefaultsAndStartsOff)
{
    EXPECT_FALSE(writtenDefault());
    EXPECT_EQ(host.userDefaults().writeCount, 1);

    notchHUD.isEnabled.set(true);
    notchHUD.isEnabled.set(true);
    EXPECT_TRUE(writtenDefault());
    EXPECT_EQ(host.userDefaults().writeCount, 3);

    const NotchAcousticHUDController restarted(host, engine, monitor, nullptr);
    EXPECT_FALSE(restarted.isEnabled.get());
    EXPECT_FALSE(writtenDefault());
}

TEST_F(NotchHUD, ComesWithTheNextStrokeAndLeavesAfterTheLast)
{
    notchHUD.isEnabled.set(true);
    host.advance(5);
    EXPECT_FALSE(panel().isVisible);

    for (int stroke = 0; stroke < 4; ++stroke) {
        strike();
        host.advance(1.55);
        EXPECT_TRUE(panel().isVisible && notchHUD.isExpanded.get());
    }

    host.advance(0.1);
    EXPECT_FALSE(notchHUD.isExpanded.get());
    EXPECT_EQ(notchHUD.currentEnergy.get(), 0);
    host.advance(0.35);
    EXPECT_TRUE(panel().isVisible);
    host.advance(0.1);
    EXPECT_FALSE(panel().isVisible);

    strike();
    EXPECT_TRUE(panel().isVisible && notchHUD.isExpanded.get());
    EXPECT_EQ(panels().size(), 1U);
}

TEST_F(NotchHUD, StaysWhenAStrokeReopensItWhileItCloses)
{
    notchHUD.isEnabled.set(true);
    strike();
    host.advance(1.7);
    ASSERT_FALSE(notchHUD.isExpanded.get());

    strike();
    host.advance(1.5);
    EXPECT_TRUE(panel().isVisible && notchHUD.isExpanded.get());
    const auto& journal = host.journal();
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "panel ordered out"), 1) << "only by setup";
}

TEST_F(NotchHUD, IgnoresStrokesWhileItIsOffOrHapticsAre)
{
    strike();
    notchHUD.triggerPulse();
    EXPECT_FALSE(panel().isVisible || notchHUD.isExpanded.get());
    EXPECT_EQ(notchHUD.currentEnergy.get(), 0);

    notchHUD.isEnabled.set(true);
    engine.isHapticsEnabled.set(false);
    strike();
    EXPECT_FALSE(panel().isVisible || notchHUD.isExpanded.get());
}

TEST_F(NotchHUD, IsGoneAtOnceWhenItIsSwitchedOffHoweverFarItHasClosed)
{
    for (const double waited : {0.0, 1.0, 1.7, 3.0}) {
        SCOPED_TRACE(waited);
        notchHUD.isEnabled.set(true);
        strike();
        host.advance(waited);

        notchHUD.isEnabled.set(false);
        EXPECT_FALSE(panel().isVisible || notchHUD.isExpanded.get());
        host.advance(3);
        EXPECT_FALSE(panel().isVisible || notchHUD.isExpanded.get());
        EXPECT_EQ(notchHUD.currentEnergy.get(), 0) << "the wait was not cancelled";
    }
}

TEST_F(NotchHUD, DrawsAFreshEnergyFromTheClosedRangeForEveryStroke)
{
    notchHUD.isEnabled.set(true);
    host.random().script({0, ~std::uint64_t{0}});
    notchHUD.triggerPulse();
    EXPECT_EQ(notchHUD.currentEnergy.get(), 0.65);
    notchHUD.triggerPulse();
    EXPECT_EQ(notchHUD.currentEnergy.get(), 1.0);
}

TEST_F(NotchHUD, MakesItsPanelWithTheFirstStrokeWhenNobodyDidBefore)
{
    panels().clear();
    NotchAcousticHUDController late(host, engine, monitor, [] { return std::make_unique<platform::View>(); });
    late.triggerPulse();
    EXPECT_TRUE(panels().empty());

    late.isEnabled.set(true);
    late.triggerPulse();
    late.setup();
    ASSERT_EQ(panels().size(), 1U);
    EXPECT_TRUE(panel().isVisible);
}

TEST_F(NotchHUD, ShowsThePackElseTheSwitchAndMirrorsTheSpeed)
{
    EXPECT_EQ(notchHUD.switchName.get(), "Holy Panda");

    engine.currentSwitchType.set(audio::SwitchType::nkCream);
    engine.selectedCustomPack.set(audio::SoundPackInfo{"custom_oak", "Oak", "", true, "/packs/oak"});
    monitor.currentWPM.set(93);
    host.settle();
    EXPECT_EQ(notchHUD.switchName.get(), "Oak");
    EXPECT_EQ(notchHUD.currentWPM.get(), 93);

    const NotchAcousticHUDController started(host, engine, monitor, nullptr);
    host.settle();
    EXPECT_EQ(started.switchName.get(), "Oak");
    EXPECT_EQ(started.currentWPM.get(), 93);

    engine.selectedCustomPack.set(std::nullopt);
    host.settle();
    EXPECT_EQ(notchHUD.switchName.get(), "NK Cream");
    engine.currentSwitchType.set(audio::SwitchType::typewriter);
    host.settle();
    EXPECT_EQ(notchHUD.switchName.get(), "Typewriter");
}

TEST_F(NotchHUD, HangsUnderTheTopOfTheMainScreen)
{
    struct Row {
        const char* name;
        std::optional<Screen> screen;
        Rect frame;
    };

    const Row rows[] = {
        {.name = "no housing", .screen = Screen{{0, 0, 1920, 1080}, 0}, .frame = {800, 1002, 320, 46}},
        {.name = "housing", .screen = Screen{{0, 0, 1512, 982}, 32}, .frame = {596, 912, 320, 46}},
        {.name = "another origin", .screen = Screen{{-100, 50, 1000, 800}, 0}, .frame = {240, 772, 320, 46}},
        {.name = "no screen", .screen = std::nullopt, .frame = {240, 772, 320, 46}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        host.screens().change(row.screen);
        EXPECT_EQ(panel().frame, row.frame);
        EXPECT_EQ(panel().level, platform::WindowLevel::statusBar);
    }
}

TEST_F(NotchHUD, LateCallsFindNobodyOnceItIsGone)
{
    {
        NotchAcousticHUDController brief(host, engine, monitor,
                                         [] { return std::make_unique<platform::View>(); });
        brief.isEnabled.set(true);
        brief.triggerPulse();
        host.advance(1.7);
        brief.triggerPulse();
    }
    strike();
    host.screens().change(Screen{{0, 0, 800, 600}, 0});
    host.advance(3);
    EXPECT_FALSE(panels().at(1)->exists);
}

TEST(Waveform, FoldsEachBarBackToTheBottom)
{
    struct Row {
        double energy;
        bool isExpanded;
        std::array<double, kWaveformBars> heights;
    };

    const Row rows[] = {
        {.energy = 1, .isExpanded = true, .heights = {6.5, 10, 13.5, 3, 6.5, 10}},
        {.energy = 0.8, .isExpanded = true, .heights = {5.8, 8.6, 11.4, 14.2, 3, 5.8}},
        {.energy = 0.65, .isExpanded = true, .heights = {5.275, 7.55, 9.825, 12.1, 14.375, 16.65}},
        {.energy = 0, .isExpanded = true, .heights = {3, 3, 3, 3, 3, 3}},
        {.energy = 1, .isExpanded = false, .heights = {2, 2, 2, 2, 2, 2}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.energy);
        for (int bar = 0; bar < kWaveformBars; ++bar) {
            EXPECT_NEAR(waveformBarHeight(bar, row.energy, row.isExpanded),
                        row.heights.at(static_cast<std::size_t>(bar)), 1e-9);
        }
    }
}

} // namespace
} // namespace tocca::ui
