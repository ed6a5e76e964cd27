#include "Desktops/DesktopAtWork.h"
#include "Instruments/Desktop/DockPanel.h"
#include "Instruments/Desktop/Monitors.h"
#include "Instruments/XWindow.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <thread>

namespace tocca::desktops {
namespace {

using namespace std::chrono_literals;
using instruments::DockPanel;
using instruments::VisibleWindow;
using instruments::XWindow;

constexpr int kWidth = 360;
constexpr int kHeight = 560;

class Popover : public DesktopAtWork {
protected:
    [[nodiscard]] std::optional<VisibleWindow> popover() const
    {
        const auto windows = screen.windowsOf(program.id());
        const auto match = std::find_if(windows.begin(), windows.end(), [](const VisibleWindow& window) {
            return window.width == kWidth && window.height > 100;
        });
        return match != windows.end() ? std::optional(*match) : std::nullopt;
    }

    /// Tells the program, as the desktop's panel does, that its icon was used at a point.
    static void activateIcon(int x, int y)
    {
        instruments::Process call({"dbus-send", "--session", "--print-reply", "--dest=org.tocca.Tocca",
                                   "/StatusNotifierItem", "org.kde.StatusNotifierItem.Activate",
                                   "int32:" + std::to_string(x), "int32:" + std::to_string(y)});
        EXPECT_EQ(call.waitForExit(kPatience), 0) << call.output();
    }

    /// A click on the icon, which is on the panel.
    void clickIcon()
    {
        clickAt(iconX, iconY);
        activateIcon(iconX, iconY);
    }

    void open()
    {
        clickIcon();
        ASSERT_TRUE(becomesTrue([this] { return popover().has_value(); })) << program.output();
        ASSERT_TRUE(becomesTrue([this] { return hasKeyboard(); }));
    }

    [[nodiscard]] bool hasKeyboard() const
    {
        const auto window = popover();
        return window && screen.focus() == window->id;
    }

    /// Whether there is a card between the header and the quick keys.
    [[nodiscard]] bool hasCard() const
    {
        constexpr int kWithoutCard = 150; // pixels of the popover above the quick keys, at most
        const auto key = reader.find("Spacebar", {}, 0s);
        const auto window = popover();
        return key && window && key->y - window->y > kWithoutCard;
    }

    /// Whether it stays open for a while in which everything that happens to it has happened.
    [[nodiscard]] bool staysOpen() const
    {
        return !becomesTrue([this] { return !popover(); }, 400ms);
    }

    [[nodiscard]] bool closes() const
    {
        return becomesTrue([this] { return !popover(); });
    }

    /// A part of the screen where nothing is but the desktop itself, beside the other program.
    const int emptyX = screen.width() - 30;
    const int emptyY = 200;
    const int iconX = 1300;
    const int iconY = screen.height() - kPanel / 2;
    DockPanel panel{DockPanel::Edge::bottom, kPanel};
};

TEST_P(Popover, HangsAtItsIconWithTheKeyboardAndClosesWhereverSomebodyClicks)
{
    closeStudio();
    cover(900, 700);
    ASSERT_TRUE(becomesTrue([this] { return screen.focus() != 0; }));
    const auto before = screen.activeWindow();

    open();
    const auto place = *popover();
    EXPECT_NEAR(place.x + kWidth / 2, iconX, 1);
    EXPECT_EQ(place.height, kHeight);
    EXPECT_LE(place.y + place.height, screen.height() - kPanel) << "the icon stays in sight";
    EXPECT_GT(place.y + place.height, screen.height() - kPanel - 12);
    EXPECT_FALSE(screen.isListed(place.id));
    EXPECT_TRUE(reader.find("Spacebar"));
    keepPicture("popover");
    EXPECT_TRUE(staysOpen());

    chord({KEY_ESC});
    EXPECT_TRUE(closes()) << "Escape";
    EXPECT_TRUE(becomesTrue([&] { return screen.activeWindow() == before; })) << screen.activeWindow();
    EXPECT_TRUE(becomesTrue([&] {
        const auto windows = screen.windowsOf(other->id());
        return std::any_of(windows.begin(), windows.end(),
                           [&](const VisibleWindow& each) { return screen.focus() == each.id; });
    })) << "the keyboard is where it was";

    open();
    clickAt(600, 400);
    EXPECT_TRUE(closes()) << "another program";
    open();
    clickAt(300, iconY);
    EXPECT_TRUE(closes()) << "the panel";
    open();
    clickAt(emptyX, emptyY);
    EXPECT_TRUE(closes()) << "the desktop itself";
    open();
    clickIcon();
    EXPECT_TRUE(closes()) << "its icon";
    EXPECT_FALSE(becomesTrue([this] { return popover().has_value(); }, 400ms))
        << "and that does not open it again";
}

TEST_P(Popover, TakesAFolderThatIsDraggedToItFromAnotherProgram)
{
    const auto pack = std::filesystem::path(std::getenv("HOME")) / "Walnut Board";
    std::filesystem::create_directories(pack);
    std::ofstream(pack / "press.ogg") << "no sound, but a pack";
    closeStudio();
    other.emplace(std::vector<std::string>{OTHER_PROGRAM, "20", "20", "600", "400", pack.string()});
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() == "Other program"; }));

    open();
    const auto place = *popover();
    hands.movePointer(200, 200);
    hands.pressButton(1);
    constexpr int kSteps = 20;
    for (int step = 0; step <= kSteps; ++step) {
        hands.movePointer(200 + (place.x + 180 - 200) * step / kSteps,
                          200 + (place.y + 280 - 200) * step / kSteps);
        std::this_thread::sleep_for(20ms);
    }
    EXPECT_TRUE(popover()) << "it waits for the folder";
    hands.releaseButton(1);
    EXPECT_TRUE(becomesTrue([this] {
        const auto controls = reader.controls();
        return std::any_of(controls.begin(), controls.end(), [](const instruments::Control& control) {
            return control.name.find("Walnut Board") != std::string::npos;
        });
    })) << program.output();
    EXPECT_TRUE(staysOpen());
    keepPicture("popover-after-drop");
    chord({KEY_ESC});
    EXPECT_TRUE(closes()) << "it has the keyboard again";
}

TEST_P(Popover, ShowsTheResultOfAnImportWhenItsDialogIsClosed)
{
    closeStudio();
    cover(900, 700);
    open();
    click("Import");
    ASSERT_TRUE(becomesTrue([this] { return !popover(); })) << "it does not cover the dialog";
    const auto dialog = [this] {
        const auto windows = screen.windowsOf(program.id());
        return std::any_of(windows.begin(), windows.end(), [](const VisibleWindow& window) {
            return window.width > kWidth && window.height > 100;
        });
    };
    ASSERT_TRUE(becomesTrue(dialog)) << program.output();
    keepPicture("import-dialog");
    ASSERT_TRUE(becomesTrue([&] {
        for (const VisibleWindow& window : screen.windowsOf(program.id())) {
            if (window.width > kWidth && window.height > 100) {
                clickAt(window.x + window.width / 2,
                        window.y + window.height / 2); // some desktops leave it without the keyboard
            }
        }
        chord({KEY_ESC});
        std::this_thread::sleep_for(100ms);
        return !dialog();
    }));
    EXPECT_TRUE(becomesTrue([this] { return popover().has_value(); }));
    EXPECT_TRUE(staysOpen());
    EXPECT_TRUE(becomesTrue([this] { return hasKeyboard(); }));
}

TEST_P(Popover, IsNotInFrontOfTheProgramThatKeepsTheSoundOff)
{
    closeStudio();
    XWindow vault({.instance = "keepassxc", .className = "KeePassXC"});
    vault.activate();
    vault.takeFocus();
    std::this_thread::sleep_for(300ms);
    open();
    EXPECT_TRUE(becomesTrue([this] { return hasCard(); }));
    EXPECT_TRUE(staysOpen());
    EXPECT_TRUE(hasCard()) << "whoever looks sees why it is silent";
    keepPicture("popover-while-muted");
}

TEST_P(Popover, IsShorterOnASmallScreenAndScrolls)
{
    closeStudio();
    instruments::Monitors monitors(screen.width(), screen.height());
    monitors.useOne(1024, 480);
    const DockPanel low(DockPanel::Edge::bottom, kPanel);
    ASSERT_TRUE(becomesTrue([this] {
        const auto windows = screen.windowsOf(program.id());
        return std::any_of(windows.begin(), windows.end(), [](const VisibleWindow& window) {
            return window.width == 1024 && window.y == 460;
        });
    })) << "the program knows the new size when its glow is at the new edge";
    hands.movePointer(900, 460);
    activateIcon(900, 460);
    ASSERT_TRUE(becomesTrue([this] {
        const auto window = popover();
        return window && window->y >= 0 && window->y + window->height <= 480 - kPanel;
    }));
    ASSERT_TRUE(becomesTrue([this] { return hasKeyboard(); }));
    ASSERT_TRUE(reader.find("Spacebar"));
    keepPicture("popover-small");
    const auto place = *popover();
    const auto isWithinReach = [&] {
        const auto quit = reader.find("Quit", {}, 100ms);
        return quit && quit->isFocused && quit->y >= place.y &&
               quit->y + quit->height <= place.y + place.height;
    };
    ASSERT_TRUE(becomesTrue([&] {
        chord({KEY_LEFTSHIFT, KEY_TAB}); // the last control is the first backwards
        return becomesTrue(isWithinReach, 2s);
    })) << "the end of the column is within reach";
}

TEST_P(Popover, OpensWhereTheTrayIsWhenItIsUsedByKeyboard)
{
    closeStudio();
    cover(900, 700);
    hands.movePointer(450, 350);
    activateIcon(iconX, screen.height() - kPanel + 4);
    ASSERT_TRUE(becomesTrue([this] { return popover().has_value(); }));
    EXPECT_NEAR(popover()->x + kWidth / 2, iconX, 1) << "where the desktop says it is";
    chord({KEY_ESC});
    ASSERT_TRUE(closes());
    activateIcon(0, 0);
    ASSERT_TRUE(becomesTrue([this] { return popover().has_value(); }));
    EXPECT_EQ(popover()->x + kWidth, screen.width()) << "in the corner, where trays are";
}

INSTANTIATE_TEST_SUITE_P(Desktops, Popover, allManagers(), nameOf);

} // namespace
} // namespace tocca::desktops
