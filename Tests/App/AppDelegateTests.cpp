#include "App/AppDelegate.h"
#include "App/MainMenuTable.h"
#include "App/StatusIcon.h"
#include "Instruments/ControllersOnMemory.h"
#include "UI/StudioTheme.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::app {
namespace {

using platform::ActivationPolicy;
namespace memory = platform::memory;
using testing::ElementsAre;

/// A program that a test launches when it is ready.
struct AppDelegateTest : testing::Test {
    ui::ViewFactory::Make noting(const std::string& line)
    {
        return [this, line] {
            host.journal().push_back(line);
            return std::make_unique<platform::View>();
        };
    }

    void launch() { host.application().run(delegate); }

    memory::WindowRecord& window() { return *host.windows().made.at(0); }

    ui::ControllersOnMemory controllers;
    memory::MemoryHost& host = controllers.host;
    AppDelegate delegate{
        host,
        {.views = {.menuBar = noting("menu bar view made"),
                   .mainWindow = noting("main window view made"),
                   .notchHUD = noting("HUD view made"),
                   .underglow = noting("underglow view made")},
         .keyboardMonitor = [this]() -> keyboard::KeyboardMonitor& { return controllers.monitor; },
         .notchHUD = [this]() -> ui::NotchAcousticHUDController& { return controllers.notchHUD; },
         .underglow = [this]() -> ui::SpatialUnderglowController& { return controllers.underglow; }}};
};

TEST_F(AppDelegateTest, BringsThePartsUpInTheirOrderAndOpensTheStudioWindow)
{
    EXPECT_EQ(AppDelegate::shared(), &delegate);

    launch();

    EXPECT_THAT(host.journal(), ElementsAre("popover made", "menu bar view made", "status item made",
                                            "panel made", "panel ordered out",   // the HUD, which is off
                                            "panel made", "panel ordered front", // the underglow
                                            "menu installed", "main window view made", "window made",
                                            "policy regular", "window ordered front", "activated"));
    EXPECT_EQ(host.popovers().contentSize, (platform::Size{360, 560}));
    EXPECT_FALSE(host.popovers().isShown);
    EXPECT_EQ(host.statusBar().icon, statusIcon());
    EXPECT_EQ(window().options.title, "Tocca Studio");
    EXPECT_EQ(window().options.contentSize, (platform::Size{960, 650}));
    EXPECT_EQ(window().options.minimumSize, (platform::Size{880, 600}));
    EXPECT_EQ(window().options.background, ui::StudioTheme::chassisBg);
    EXPECT_TRUE(window().isCentered);
}

TEST_F(AppDelegateTest, ClosingTheStudioWindowHidesItAndALaterLaunchBringsTheSameOneBack)
{
    launch();

    window().clickClose();
    EXPECT_FALSE(window().isVisible);
    EXPECT_EQ(host.application().activationPolicy, ActivationPolicy::accessory);
    EXPECT_FALSE(delegate.applicationShouldTerminateAfterLastWindowClosed());

    for (const bool hasVisibleWindows : {false, true}) {
        EXPECT_TRUE(delegate.applicationShouldHandleReopen(hasVisibleWindows));
        EXPECT_TRUE(window().isVisible);
        EXPECT_EQ(host.application().activationPolicy, ActivationPolicy::regular);
    }
    EXPECT_EQ(window().timesMadeKey, 3);
    EXPECT_EQ(host.windows().made.size(), 1U);
    EXPECT_FALSE(host.application().isTerminated);
}

TEST_F(AppDelegateTest, AClickOnTheIconOpensThePopoverWithThePermissionOfNowAndTheNextClosesIt)
{
    launch();
    host.settle();
    host.trustQuery().isGranted = false;

    host.statusBar().click();
    host.settle();
    EXPECT_TRUE(host.popovers().isShown);
    EXPECT_EQ(host.popovers().background, ui::StudioTheme::chassisBg);
    EXPECT_FALSE(controllers.monitor.hasAccessibilityPermission.get());

    host.statusBar().click();
    EXPECT_FALSE(host.popovers().isShown);

    host.statusBar().click();
    delegate.showMainWindow();
    EXPECT_FALSE(host.popovers().isShown) << "the Studio window takes the popover's place";

    host.journal().clear();
    delegate.showMainWindow();
    EXPECT_THAT(host.journal(), ElementsAre("policy regular", "window ordered front", "activated"));
}

TEST_F(AppDelegateTest, ADesktopWithoutStatusButtonsLeavesTheRestAsItIs)
{
    host.statusBar().hasButtons = false;

    launch();
    delegate.togglePopover();

    EXPECT_FALSE(host.statusBar().action);
    EXPECT_FALSE(host.popovers().isShown);
    EXPECT_TRUE(window().isVisible);
}

TEST_F(AppDelegateTest, WithoutThePermissionCaptureIsLeftToThePoll)
{
    host.trustQuery().isGranted = false;
    host.advance(1.5);
    host.standardOutput().lines.clear();

    launch();
    host.settle();
    EXPECT_THAT(host.standardOutput().lines, testing::IsEmpty());
    EXPECT_TRUE(window().isVisible);
}

TEST_F(AppDelegateTest, TheMenuItemShowsAndFlipsTheNotchHUD)
{
    launch();
    const auto item = host.mainMenu().menus().at(3).items.at(0);
    ASSERT_EQ(item.action, kToggleNotchHUD);

    EXPECT_EQ(host.mainMenu().validate(item),
              (platform::MenuItemState{.isEnabled = true, .isChecked = false}));
    EXPECT_TRUE(host.mainMenu().perform(item));
    EXPECT_TRUE(controllers.notchHUD.isEnabled.get());
    EXPECT_TRUE(host.mainMenu().validate(item).isChecked);

    controllers.notchHUD.isEnabled.set(false);
    EXPECT_FALSE(host.mainMenu().validate(item).isChecked);

    const auto quit = host.mainMenu().menus().at(0).items.back();
    EXPECT_FALSE(delegate.performMenuAction(quit.action)) << "standard actions are the desktop's";
    EXPECT_TRUE(host.mainMenu().validate(quit).isEnabled);
    EXPECT_FALSE(host.mainMenu().validate(quit).isChecked);
}

} // namespace
} // namespace tocca::app
