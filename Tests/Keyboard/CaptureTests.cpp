#include "KeyboardFixture.h"
#include "Platform/KeyCodes.h"

namespace tocca::keyboard {
namespace {

using platform::EventType;
namespace flag = platform::flag;

using platform::key::kA;
using platform::key::kCapsLock;
using platform::key::kFunction;
using platform::key::kLeftShift;

using CaptureTest = KeyboardFixture;

TEST_F(CaptureTest, StartsOneTapOnItsOwnThread)
{
    startMonitor();
    monitor->start();
    host.settle();

    ASSERT_EQ(host.threads().started().size(), 1U);
    EXPECT_EQ(host.threads().started()[0]->options.name, "com.tocca.keyboardhook");
    EXPECT_TRUE(host.threads().started()[0]->options.isUserInteractive);
    EXPECT_EQ(host.eventTaps().lastMask(), 0x2401C0AU);
    EXPECT_EQ(host.eventTaps().listeningCount(), 1);
    EXPECT_TRUE(monitor->hasAccessibilityPermission.get());
    EXPECT_THAT(host.standardOutput().lines, testing::ElementsAre(kStarted));
}

TEST_F(CaptureTest, WaitsForThePermissionAndSaysSoOnce)
{
    host.trustQuery().isGranted = false;
    startMonitor();
    host.advance(10);
    EXPECT_FALSE(monitor->hasAccessibilityPermission.get());
    EXPECT_THAT(host.standardOutput().lines, testing::ElementsAre(kNotPermitted));
    EXPECT_EQ(host.localMonitors().installedCount(), 0U);

    host.trustQuery().isGranted = true;
    host.advance(1.5);
    EXPECT_EQ(host.eventTaps().listeningCount(), 1);
    EXPECT_THAT(host.standardOutput().lines, testing::ElementsAre(kNotPermitted, kStarted));

    host.trustQuery().isGranted = false;
    host.advance(1.5);
    EXPECT_FALSE(monitor->hasAccessibilityPermission.get());
    EXPECT_EQ(host.eventTaps().listeningCount(), 1) << "a withdrawn permission changes only what is shown";
}

TEST_F(CaptureTest, AsksForThePermissionAndOpensItsPage)
{
    startMonitor();
    host.trustQuery().isGranted = false;
    monitor->openAccessibilitySettings();
    host.settle();
    EXPECT_EQ(host.trustQuery().promptCount, 1);
    EXPECT_FALSE(monitor->hasAccessibilityPermission.get());
    EXPECT_THAT(host.workspace().openedUrls,
                testing::ElementsAre(
                    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
}

TEST_F(CaptureTest, SoundsAHeldKeyOnce)
{
    startMonitor();
    host.eventTaps().press(kA);
    for (int i = 0; i < 20; ++i) {
        host.advance(0.05);
        host.eventTaps().repeat(kA);
        host.eventTaps().press(kA);
    }
    host.eventTaps().release(kA);
    EXPECT_EQ(heard(), "pr");
    host.advance(0.05);
    host.eventTaps().release(kA);
    EXPECT_EQ(heard(), "r") << "a release that was never a press still counts";
}

TEST_F(CaptureTest, TurnsModifierChangesIntoStrokes)
{
    startMonitor();
    const auto change = [this](std::uint16_t code, std::uint64_t flags) {
        host.advance(0.05);
        host.eventTaps().changeFlags(code, flags);
        return heard();
    };
    EXPECT_EQ(change(kLeftShift, flag::kShift), "p");
    EXPECT_EQ(change(kLeftShift, 0), "r");
    EXPECT_EQ(change(kCapsLock, flag::kAlphaShift), "p");
    EXPECT_EQ(change(kCapsLock, 0), "r");
    EXPECT_EQ(change(kFunction, flag::kFunction), "") << "no modifier of the mask changed";
    EXPECT_EQ(change(kLeftShift, flag::kFunction | flag::kShift), "p");
    EXPECT_EQ(change(kLeftShift, flag::kControl), "p")
        << "one bit set and a lower one cleared: the larger word decides";
    EXPECT_EQ(change(kLeftShift, flag::kShift), "r");
    EXPECT_EQ(monitor->keystrokeCount.get(), 4) << "presses are counted, releases are not";
}

TEST_F(CaptureTest, PassesButtonsAndWheelToTheEngine)
{
    startMonitor();
    for (const EventType type :
         {EventType::LeftMouseDown, EventType::RightMouseDown, EventType::OtherMouseDown}) {
        host.eventTaps().send(type);
    }
    EXPECT_EQ(heard(), "ccc");
    EXPECT_EQ(host.audioPlayers().sounds()[0]->data->size(), 1366U);
    EXPECT_EQ(host.audioPlayers().sounds()[1]->data->size(), 1278U);
    EXPECT_EQ(host.audioPlayers().sounds()[2]->data->size(), 1366U);
    host.eventTaps().scroll(0);
    EXPECT_EQ(heard(), "c") << "a horizontal turn ticks too";
    EXPECT_EQ(monitor->keystrokeCount.get(), 0);
}

TEST_F(CaptureTest, EnablesADisabledTapAtOnce)
{
    startMonitor();
    for (const EventType notice : {EventType::TapDisabledByTimeout, EventType::TapDisabledByUserInput}) {
        host.eventTaps().send(notice);
        EXPECT_EQ(host.eventTaps().listeningCount(), 1);
    }
}

TEST_F(CaptureTest, ServesItsOwnWindowsOnlyWhileThereIsNoTap)
{
    host.eventTaps().setUnavailable(true);
    startMonitor();
    EXPECT_THAT(host.standardOutput().lines,
                testing::ElementsAre("❌ Failed to create CGEventTap on dedicated thread"));
    const auto type = [this] {
        host.advance(0.05);
        host.localMonitors().send(EventType::KeyDown, {.keyCode = kA});
        host.localMonitors().send(EventType::KeyDown, {.keyCode = kA, .isAutorepeat = true});
        host.localMonitors().send(EventType::KeyUp, {.keyCode = kA});
        host.localMonitors().send(EventType::FlagsChanged, {.keyCode = kLeftShift, .flags = flag::kShift});
        return heard();
    };
    EXPECT_EQ(type(), "pr");
    host.advance(10);
    EXPECT_EQ(host.threads().started().size(), 1U) << "nothing tries again by itself";

    monitor->stop();
    EXPECT_EQ(type(), "") << "a stopped monitor hears nothing";
    host.eventTaps().setUnavailable(false);
    monitor->start();
    host.settle();
    EXPECT_EQ(type(), "") << "the tap hears these keys already";
}

TEST_F(CaptureTest, StopsAndStartsAgainWithoutLosingAKey)
{
    startMonitor();
    host.eventTaps().press(kA);
    monitor->stop();
    EXPECT_EQ(host.eventTaps().listeningCount(), 0);
    EXPECT_EQ(host.threads().runningCount(), 0);

    host.advance(0.05);
    monitor->start();
    monitor->stop();
    host.settle();
    EXPECT_EQ(host.eventTaps().listeningCount(), 0) << "stopped before its thread got to run";

    monitor->start();
    host.settle();
    host.eventTaps().press(kA);
    EXPECT_EQ(heard(), "pp") << "a key held across the stop is not stuck";
}

TEST_F(CaptureTest, EndsWithEventsAndTimersPending)
{
    startMonitor();
    host.eventTaps().press(kA);
    monitor.reset();
    host.advance(10);
    host.eventTaps().press(kA);
    EXPECT_EQ(heard(), "p");
}

} // namespace
} // namespace tocca::keyboard
