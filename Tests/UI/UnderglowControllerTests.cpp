#include "Instruments/ControllersOnMemory.h"
#include "UI/Underglow/Glow.h"

#include <gtest/gtest.h>

#include <limits>

namespace tocca::ui {
namespace {

using platform::Rect;
using platform::Screen;

struct Underglow : ControllersOnMemory, testing::Test {
    Underglow() { host.settle(); }

    void strike(std::uint16_t keyCode = 0)
    {
        engine.playKey(keyCode, audio::KeyStrokeAction::down);
        host.settle();
    }

    bool isLit() { return underglow.pulseOpacity.get() == kGlowPeak; }

    bool isDark() { return underglow.pulseOpacity.get() == 0; }

    platform::memory::PanelRecord& window() { return *host.panels().made.at(0); }
};

TEST_F(Underglow, FlashesOnceInTheMiddleWhenItStarts)
{
    EXPECT_TRUE(isLit());
    EXPECT_EQ(underglow.pulseXRatio.get(), 0.5);
    EXPECT_TRUE(window().isVisible);
    EXPECT_EQ(window().level, platform::WindowLevel::floating);
    EXPECT_EQ(window().frame, (Rect{0, 0, 1920, 20}));

    host.advance(0.07);
    EXPECT_TRUE(isDark());
    EXPECT_TRUE(window().isVisible) << "it stays, clear, on the screen";
}

TEST_F(Underglow, StaysLitWhileTypingGoesOnAndFadesAfterTheLastStroke)
{
    for (int stroke = 0; stroke < 5; ++stroke) {
        strike();
        host.advance(0.05);
        EXPECT_TRUE(isLit());
    }
    host.advance(0.02);
    EXPECT_TRUE(isDark());
    EXPECT_EQ(host.panels().made.size(), 1U);
}

TEST_F(Underglow, GlowsWhereTheKeyLies)
{
    constexpr std::uint16_t kLeftmost = 0;
    constexpr std::uint16_t kSpace = 49;
    strike(kLeftmost);
    EXPECT_NEAR(underglow.pulseXRatio.get(), 0.179, 0.001);
    strike(kSpace);
    EXPECT_EQ(underglow.pulseXRatio.get(), 0.5);

    engine.isSpatialAudioEnabled.set(false);
    strike(kLeftmost);
    EXPECT_EQ(underglow.pulseXRatio.get(), 0.5);
}

TEST_F(Underglow, StaysDarkWhileItIsOffOrHapticsAre)
{
    underglow.isEnabled.set(false);
    EXPECT_TRUE(isLit()) << "what has begun still ends by itself";
    host.advance(0.07);
    strike();
    underglow.triggerPulse(0.5F);
    EXPECT_TRUE(isDark());
    EXPECT_EQ(underglow.pulseXRatio.get(), 0.5);
    EXPECT_TRUE(window().isVisible);

    underglow.isEnabled.set(true);
    engine.isHapticsEnabled.set(false);
    strike();
    EXPECT_TRUE(isDark());

    engine.isHapticsEnabled.set(true);
    strike();
    EXPECT_TRUE(isLit());
}

TEST_F(Underglow, GetsItsWindowFromTheFirstStrokeThatFindsAScreen)
{
    host.panels().made.clear();
    host.screens().change(std::nullopt);
    SpatialUnderglowController late(host, engine, [] { return std::make_unique<platform::View>(); });
    late.setup();
    late.triggerPulse(0.6F);
    EXPECT_EQ(late.pulseXRatio.get(), 0.85);
    EXPECT_EQ(late.pulseOpacity.get(), kGlowPeak);
    EXPECT_TRUE(host.panels().made.empty());

    host.screens().change(Screen{{10, 20, 800, 600}, 0});
    EXPECT_TRUE(host.panels().made.empty());
    late.triggerPulse(0);
    ASSERT_EQ(host.panels().made.size(), 1U);
    EXPECT_EQ(window().frame, (Rect{10, 20, 800, 20}));

    host.screens().change(Screen{{-5, 0, 2560, 1440}, 32});
    EXPECT_EQ(window().frame, (Rect{-5, 0, 2560, 20}));
    host.screens().change(std::nullopt);
    EXPECT_EQ(window().frame, (Rect{-5, 0, 2560, 20}));
}

TEST_F(Underglow, LateCallsFindNobodyOnceItIsGone)
{
    {
        SpatialUnderglowController brief(host, engine, [] { return std::make_unique<platform::View>(); });
        brief.triggerPulse(0);
    }
    strike();
    host.screens().change(Screen{{0, 0, 800, 600}, 0});
    host.advance(1);
    EXPECT_FALSE(host.panels().made.at(1)->exists);
}

TEST(Glow, KeepsWithinTheScreen)
{
    struct Row {
        float pan;
        double ratio;
        double lineBegin;
        double lineEnd;
    };

    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const Row rows[] = {
        {.pan = -kInfinity, .ratio = 0.15, .lineBegin = 0, .lineEnd = 0.4},
        {.pan = -0.6F, .ratio = 0.15, .lineBegin = 0, .lineEnd = 0.4},
        {.pan = -0.28F, .ratio = 0.33667, .lineBegin = 0.08667, .lineEnd = 0.58667},
        {.pan = 1, .ratio = 0.85, .lineBegin = 0.6, .lineEnd = 1},
        {.pan = std::numeric_limits<float>::quiet_NaN(), .ratio = 0.85, .lineBegin = 0.6, .lineEnd = 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pan);
        const double ratio = glowRatio(row.pan);
        const EdgeLineStops stops = edgeLineStops(ratio);
        EXPECT_NEAR(ratio, row.ratio, 1e-5);
        EXPECT_NEAR(stops.begin, row.lineBegin, 1e-5);
        EXPECT_EQ(stops.peak, ratio);
        EXPECT_NEAR(stops.end, row.lineEnd, 1e-5);
    }
}

} // namespace
} // namespace tocca::ui
