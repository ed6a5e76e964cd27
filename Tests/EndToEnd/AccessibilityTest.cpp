#include "EndToEnd/InterfaceAtWork.h"
#include "Instruments/Tray.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <set>

namespace tocca::endtoend {
namespace {

using instruments::Control;

class Accessibility : public InterfaceAtWork {
protected:
    /// Waits until the focus is on another control than `before`.
    std::optional<Control> nextFocus(const std::optional<Control>& before)
    {
        const auto isSame = [](const Control& one, const Control& other) {
            return one.name == other.name && one.role == other.role;
        };
        std::optional<Control> now;
        (void)becomesTrue([&] {
            now = reader.focused();
            return now && !(before && isSame(*now, *before));
        });
        return now;
    }

    /// Presses Tab until the focus is where it began. Every stop must have a name, a role and a place.
    std::set<std::string> walk()
    {
        constexpr std::size_t kMostStops = 80;
        std::set<std::string> names;
        std::optional<Control> first;
        std::optional<Control> now;
        for (std::size_t stops = 0; stops < kMostStops; ++stops) {
            chord({KEY_TAB});
            now = nextFocus(now);
            if (!now) {
                ADD_FAILURE() << "the focus is lost after " << (names.empty() ? "nothing" : *names.rbegin());
                return names;
            }
            EXPECT_FALSE(now->name.empty())
                << "a nameless " << now->role << " after " << names.size() << " stops";
            EXPECT_FALSE(now->role.empty() || now->role == "unknown" || now->role == "invalid") << now->name;
            EXPECT_TRUE(now->width > 0 && now->height > 0) << now->name;
            if (first && now->name == first->name && now->role == first->role) {
                return names;
            }
            first = first ? first : now;
            names.insert(now->name);
        }
        ADD_FAILURE() << "the focus never returns to " << first->name;
        return names;
    }

    /// Nothing that can have the focus is without a name, seen or not.
    void expectNothingNameless()
    {
        std::string before;
        for (const Control& control : reader.controls()) {
            EXPECT_FALSE(control.isFocusable && control.name.empty())
                << "a nameless " << control.role << " after " << before;
            before = control.role + " " + control.name;
        }
    }

    instruments::Tray tray;
};

TEST_F(Accessibility, AllOfTheStudioIsReachedByTheKeyboardAndHasAName)
{
    struct Page {
        const char* title;
        std::vector<const char*> controls;
    };

    const std::vector<Page> pages{
        {"Switch Showroom", {"Filter", "Search switches...", "Audition Holy Panda", "Audition Typewriter"}},
        {"Acoustic Console",
         {"Master Audio Attenuator", "100% (MAX)", "4mm Felt Deskmat (Thock)", "Studio Amber"}},
        {"Keyboard Stage", {"Test pad"}},
        {"Smart Mute & Privacy",
         {"Auto-Mute on Active Voice/Video Streams", "Auto-Silence in Password Managers"}},
        {"Hardware Telemetry", {}},
        {"System Integration", {"Launch Tocca on macOS Startup", "Soundpacks Directory", "Open in Finder"}},
    };
    for (const Page& page : pages) {
        SCOPED_TRACE(page.title);
        // The keyboard alone: Tab to the list of pages, then down to the next.
        std::optional<Control> now = reader.focused();
        for (int stops = 0; (!now || now->role != "list item") && stops < 80; ++stops) {
            chord({KEY_TAB});
            now = nextFocus(now);
        }
        ASSERT_TRUE(now && now->role == "list item");
        if (now->name != page.title) {
            chord({KEY_DOWN});
            now = nextFocus(now);
        }
        ASSERT_TRUE(now && now->name == page.title) << (now ? now->name : "nothing");
        const auto names = walk();
        for (const char* control : page.controls) {
            EXPECT_TRUE(names.count(control) == 1) << control << " is not reached";
        }
        EXPECT_TRUE(names.count("Tocca") == 1) << "the menu is not reached";
        expectNothingNameless();
    }
}

TEST_F(Accessibility, MenuAndAboutWindowAreReadAndWorkedByTheKeyboard)
{
    chord({KEY_F10});
    chord({KEY_DOWN});
    ASSERT_TRUE(becomesTrue([this] {
        const auto now = reader.focused();
        return now && now->name == "About Tocca" && now->role == "menu item";
    }));
    expectNothingNameless();
    chord({KEY_ENTER});
    EXPECT_TRUE(reader.find("The sound of a mechanical keyboard", "label") ||
                reader.find("The sound of a mechanical keyboard"));
    ASSERT_TRUE(becomesTrue([this] { return window("About Tocca").has_value(); }));
    chord({KEY_ESC});
    EXPECT_TRUE(becomesTrue([this] { return !window("About Tocca").has_value(); }));
}

TEST_F(Accessibility, AllOfThePopoverIsReachedByTheKeyboardAndHasAName)
{
    const auto icon = tray.icon();
    ASSERT_TRUE(icon) << program.output();
    clickAt(icon->first, icon->second);
    ASSERT_TRUE(reader.find("Spacebar"));
    const auto names = walk();
    for (const char* control : {"Tocca sounds", "Open Tocca Studio Console", "Left", "Import", "Holy Panda",
                                "Auto-Mute on Calls", "Underglow Theme", "Krytox 205g0 Switch Lube", "Volume",
                                "TEST TYPING PAD", "Launch at Login", "Quit"}) {
        EXPECT_TRUE(names.count(control) == 1) << control << " is not reached";
    }
    EXPECT_EQ(names.count("NK Cream"), 0U) << "the packs are one stop";
    expectNothingNameless();
}

TEST(AccessibilityLater, AScreenReaderThatIsSwitchedOnLaterFindsTheWindows)
{
    instruments::ScreenReader reader(instruments::ScreenReader::Start::off);
    instruments::Process program = startProgram();
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();
    reader.switchOn();
    EXPECT_TRUE(reader.find("Acoustic Console")) << program.output();
}

} // namespace
} // namespace tocca::endtoend
