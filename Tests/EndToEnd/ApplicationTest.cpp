#include "EndToEnd/InterfaceAtWork.h"
#include "Instruments/Now.h"
#include "Instruments/Tray.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;

constexpr const char* kStudio = "Tocca Studio";

class Application : public InterfaceAtWork {
protected:
    [[nodiscard]] bool hasPopover()
    {
        const auto windows = screen.windowsOf(program.id());
        return std::any_of(windows.begin(), windows.end(),
                           [](const auto& window) { return window.width == 360 && window.height == 560; });
    }

    /// Opens the popover by its icon.
    void openPopover()
    {
        const auto icon = tray.icon();
        ASSERT_TRUE(icon) << program.output();
        clickAt(icon->first, icon->second);
        ASSERT_TRUE(becomesTrue([this] { return hasPopover(); })) << program.output();
    }

    instruments::Tray tray;
};

TEST_F(Application, AClickOnTheTrayIconOpensThePopoverAndTheNextClosesIt)
{
    openPopover();
    EXPECT_TRUE(reader.find("Spacebar"));
    keepPicture("desktop-popover");

    const auto icon = tray.icon();
    clickAt(icon->first, icon->second);
    EXPECT_TRUE(becomesTrue([this] { return !hasPopover(); })) << "a second click closes it";

    openPopover();
    chord({KEY_ESC});
    EXPECT_TRUE(becomesTrue([this] { return !hasPopover(); })) << "Escape closes it";

    openPopover();
    clickAt(5, 5);
    EXPECT_TRUE(becomesTrue([this] { return !hasPopover(); })) << "a click elsewhere closes it";
}

TEST_F(Application, KeysTypedIntoTheTestFieldAreHeardOnceEach)
{
    openPopover();
    listen();
    // The field is near the end of a long column: the keyboard reaches it from either side.
    ASSERT_TRUE(becomesTrue([this] {
        if (reader.find("TEST TYPING PAD", "text", 0s).value_or(instruments::Control{}).isFocused) {
            return true;
        }
        chord({KEY_LEFTSHIFT, KEY_TAB});
        return false;
    })) << "the keyboard never reaches the test field";

    const std::vector<std::uint16_t> keys{KEY_T, KEY_O, KEY_C, KEY_C, KEY_A};
    const instruments::Hearing hearing = typeAndHear(keys);
    EXPECT_EQ(hearing.heard(), keys.size());
    EXPECT_TRUE(hearing.others.empty());
    keepPicture("desktop-test-field");
}

TEST_F(Application, AFolderDroppedOntoThePopoverIsImported)
{
    const std::filesystem::path home = std::getenv("HOME");
    const auto pack = home / "Walnut Board";
    std::filesystem::create_directories(pack);
    std::filesystem::copy(std::filesystem::path(HOLY_PANDA_DIRECTORY), pack,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
    const instruments::Process fileManager({OTHER_PROGRAM, "20", "20", "120", "90", pack.string()});
    const auto folderWindow = [&] {
        const auto windows = screen.windowsOf(fileManager.id());
        return windows.empty() ? std::nullopt : std::optional(windows.front());
    };
    ASSERT_TRUE(becomesTrue([&] { return folderWindow().has_value(); }));
    const auto folder = *folderWindow();

    openPopover();
    const auto windows = screen.windowsOf(program.id());
    const auto popover =
        std::find_if(windows.begin(), windows.end(), [](const auto& window) { return window.width == 360; });
    ASSERT_NE(popover, windows.end());
    hands.movePointer(folder.x + 30, folder.y + 30);
    hands.pressButton(1);
    for (int step = 0; step <= 20; ++step) {
        hands.movePointer(folder.x + 30 + (popover->x + 180 - folder.x - 30) * step / 20,
                          folder.y + 30 + (popover->y + 280 - folder.y - 30) * step / 20);
        std::this_thread::sleep_for(20ms);
    }
    hands.releaseButton(1);

    const auto imported = home / ".local/share/Tocca/CustomSoundPacks/Walnut Board";
    EXPECT_TRUE(becomesTrue([&] { return std::filesystem::is_directory(imported); })) << program.output();
    EXPECT_TRUE(becomesTrue([this] {
        const auto controls = reader.controls(); // the line may lie below what is scrolled into sight
        return std::any_of(controls.begin(), controls.end(), [](const instruments::Control& control) {
            return control.name == "Imported 'Walnut Board'!";
        });
    }));
}

TEST_F(Application, ClosingTheStudioHidesItAndASecondLaunchBringsItBack)
{
    const auto studio = window(kStudio);
    ASSERT_TRUE(studio);
    EXPECT_EQ(screen.activeWindow(), kStudio);

    chord({KEY_LEFTCTRL, KEY_W});
    ASSERT_TRUE(becomesTrue([this] { return !window(kStudio); })) << "the window stays";
    EXPECT_TRUE(program.isRunning());

    instruments::Process second = startProgram();
    EXPECT_EQ(second.waitForExit(kPatience), 0) << second.output();
    EXPECT_TRUE(becomesTrue([this] { return window(kStudio).has_value(); })) << program.output();
    EXPECT_TRUE(becomesTrue([this] { return screen.activeWindow() == kStudio; }));
    EXPECT_EQ(second.countLines(kListens), 0) << "the second instance must not capture";
}

TEST_F(Application, QuitEndsTheProcess)
{
    openPopover();
    const double from = instruments::now();
    chord({KEY_LEFTCTRL, KEY_Q});
    EXPECT_EQ(program.waitForExit(kPatience), 0) << program.output();
    EXPECT_LT(instruments::now() - from, 5.0) << "meant: within a second on an idle computer";
}

TEST(ApplicationWithoutTray, KeepsRunningAndSaysOnceHowItsWindowComesBack)
{
    constexpr const char* kWhere = "Start it again to bring the window back.";
    const instruments::XScreen screen;
    instruments::XTestKeyboard hands;
    instruments::Process program = startProgram();
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();

    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(becomesTrue([&] { return screen.activeWindow() == kStudio; })) << program.output();
        hands.press(KEY_LEFTCTRL);
        const std::uint16_t gone = time == 0 ? KEY_H : KEY_W; // "Hide Tocca", then "Close Window"
        hands.press(gone);
        hands.release(gone);
        hands.release(KEY_LEFTCTRL);
        ASSERT_TRUE(becomesTrue(
            [&] { return screen.windowsOf(program.id()).empty() || screen.activeWindow() != kStudio; }));
        ASSERT_TRUE(program.waitForLine(kWhere, kPatience)) << program.output();
        instruments::Process again = startProgram();
        EXPECT_EQ(again.waitForExit(kPatience), 0) << again.output();
    }
    ASSERT_TRUE(becomesTrue([&] { return screen.activeWindow() == kStudio; })) << program.output();
    EXPECT_EQ(program.countLines(kWhere), 1) << program.output();
}

} // namespace
} // namespace tocca::endtoend
