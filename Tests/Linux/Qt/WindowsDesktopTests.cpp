#include "Platform/Linux/Qt/LinuxLocalMonitors.h"
#include "Platform/Linux/Qt/LocalKeys.h"
#include "Platform/Linux/Qt/Windows/LinuxWindows.h"
#include "Platform/Linux/Qt/Windows/PopoverWindow.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gtest/gtest.h>

#include <QScreen>

#include <algorithm>
#include <vector>

namespace tocca::platform::linux {

namespace {

const WindowOptions kOptions{
    .title = "Studio", .contentSize = {960, 650}, .minimumSize = {880, 600}, .background = {246, 248, 250}};

class WindowsDesktop : public ::testing::Test {
protected:
    std::unique_ptr<Window> show()
    {
        auto window = windows_.make(kOptions, content_.view());
        window->center();
        window->makeKeyAndOrderFront();
        EXPECT_TRUE(runUntil([&] { return content_.isShown() && content_.window()->isActive(); }));
        return window;
    }

    static std::string clients() { return property(0, "_NET_CLIENT_LIST"); }

    /// Takes the person to another desktop, and waits until the window manager has done so.
    static void switchTo(const std::string& desktop)
    {
        outputOf({"xdotool", "set_desktop", desktop});
        ASSERT_TRUE(runUntil([&] { return contains(property(0, "_NET_CURRENT_DESKTOP"), "= " + desktop); }));
    }

    [[nodiscard]] bool isOn(const std::string& desktop) const
    {
        return runUntil([&] { return contains(property(content_.id(), "_NET_WM_DESKTOP"), "= " + desktop); });
    }

    OwnWindows family_;
    LinuxWindows windows_{family_};
    Content content_;
};

TEST_F(WindowsDesktop, OpensInTheMiddleAsTheProgramsOwn)
{
    const auto window = show();
    EXPECT_EQ(content_.window()->size(), QSize(960, 650));
    EXPECT_EQ(content_.item->size(), QSizeF(960, 650));
    const QPoint offset = content_.window()->frameGeometry().center() -
                          content_.window()->screen()->availableGeometry().center();
    EXPECT_LE(std::max(std::abs(offset.x()), std::abs(offset.y())), 24) << "but for half a title bar";
    EXPECT_TRUE(contains(property(content_.id(), "WM_CLASS"), "\"tocca\", \"Tocca\""));
    EXPECT_TRUE(contains(property(content_.id(), "WM_NORMAL_HINTS"), "minimum size: 880 by 600"));
    content_.window()->resize(1000, 700);
    EXPECT_TRUE(runUntil([&] { return content_.item->size() == QSizeF(1000, 700); }));
}

TEST_F(WindowsDesktop, HidesInsteadOfClosingAndComesBackWhereItWas)
{
    const auto window = show();
    int questions = 0;
    window->setShouldClose([&] {
        ++questions;
        window->orderOut();
        return false;
    });
    outputOf({"xdotool", "windowmove", "--sync", std::to_string(content_.id()), "150", "90"});
    ASSERT_TRUE(runUntil([&] { return content_.window()->framePosition().x() == 150; }));
    const QPoint place = content_.window()->framePosition();
    const std::string before = clients();

    outputOf({"xdotool", "key", "alt+F4"});
    ASSERT_TRUE(runUntil([&] { return questions == 1; }));
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(runUntil([&] { return clients() != before; })) << "it is not in the task bar either";

    outputOf({"xdotool", "set_num_desktops", "2"});
    switchTo("1");
    window->makeKeyAndOrderFront();
    ASSERT_TRUE(runUntil([&] { return content_.isShown() && content_.window()->isActive(); }));
    EXPECT_TRUE(runUntil([&] { return content_.window()->framePosition() == place; }));
    EXPECT_TRUE(isOn("1"));

    switchTo("0");
    window->makeKeyAndOrderFront();
    EXPECT_TRUE(isOn("0")) << "it comes to where the person is";
}

TEST_F(WindowsDesktop, ShowsTheMonitorsWhatIsTypedIntoIt)
{
    LinuxLocalMonitors monitors;
    LocalKeys keys(monitors);
    family_.setListener(&keys);
    std::vector<std::pair<EventType, InputEvent>> heard;
    const auto monitor = monitors.add(
        ~EventMask{0}, [&](EventType type, const InputEvent& event) { heard.emplace_back(type, event); });
    const auto window = show();
    outputOf({"xdotool", "key", "shift+a"});
    ASSERT_TRUE(runUntil([&] { return heard.size() >= 4; }));
    EXPECT_EQ(heard[0].first, EventType::FlagsChanged);
    EXPECT_EQ(heard[1].first, EventType::KeyDown);
    EXPECT_EQ(heard[1].second.keyCode, 0);
    EXPECT_EQ(heard[1].second.flags, flag::kShift);
    EXPECT_FALSE(heard[1].second.isAutorepeat);
    EXPECT_EQ(std::count_if(heard.begin(), heard.end(),
                            [](const auto& each) { return each.first == EventType::KeyUp; }),
              1);
    heard.clear();

    outputOf({"xdotool", "keydown", "s"});
    ASSERT_TRUE(runUntil([&] {
        return std::any_of(heard.begin(), heard.end(),
                           [](const auto& each) { return each.second.isAutorepeat; });
    })) << "the desktop repeats the key";
    window->orderOut();
    EXPECT_TRUE(runUntil([&] { return heard.back().first == EventType::KeyUp; }))
        << "nobody hears the release, so it counts as released";
    outputOf({"xdotool", "keyup", "s"});
}

class PopoverDesktop : public WindowsDesktop {
protected:
    void SetUp() override
    {
        popover_.setContentSize({360, 560});
        popover_.setContent(content_.view());
    }

    void open()
    {
        popover_.showAt({800, 10, 24, 24}, std::nullopt);
        ASSERT_TRUE(runUntil([&] { return content_.isShown() && popover_.isActive(); }));
    }

    void clickElsewhere()
    {
        outputOf({"xdotool", "mousemove", "300", "900"}); // on the other window
        outputOf({"xdotool", "click", "1"});
    }

    PopoverWindow popover_{family_};
};

TEST_F(PopoverDesktop, ClosesOnEscapeAndOnAClickElsewhere)
{
    Content behind;
    const auto other = windows_.make(kOptions, behind.view());
    other->makeKeyAndOrderFront();
    ASSERT_TRUE(runUntil([&] { return behind.isShown() && behind.window()->isActive(); }));
    behind.window()->setPosition(20, 300);

    open();
    EXPECT_EQ(popover_.position(), QPoint(632, 40)) << "below its anchor, in the middle";
    outputOf({"xdotool", "key", "Escape"});
    EXPECT_TRUE(runUntil([&] { return !popover_.isVisible(); }));

    open();
    family_.setDialog(true);
    EXPECT_FALSE(popover_.isVisible()) << "the folder dialog is to be seen";
    EXPECT_TRUE(popover_.isOpen());
    clickElsewhere();
    family_.setDialog(false);
    EXPECT_TRUE(runUntil([&] { return popover_.isVisible() && popover_.isActive(); }));
    popover_.dismiss();
    EXPECT_TRUE(runUntil([&] { return behind.window()->isActive(); })) << "the keyboard goes back";

    open();
    clickElsewhere();
    ASSERT_TRUE(runUntil([&] { return !popover_.isVisible(); }));
    popover_.showAt({800, 10, 24, 24}, std::nullopt);
    EXPECT_FALSE(popover_.isVisible()) << "the click that took the focus away was meant to close it";
    open();
}

TEST(PopoverPlace, LeavesPanelsInSight)
{
    struct Row {
        const char* name;
        QRect panel;
        QRect expected;
    };

    const QRect area(0, 0, 1600, 1000);
    const Row rows[] = {// NOLINT(modernize-avoid-c-arrays)
                        {"top", {0, 0, 1600, 30}, {0, 30, 1600, 970}},
                        {"bottom", {0, 956, 1600, 44}, {0, 0, 1600, 956}},
                        {"left", {0, 0, 60, 1000}, {60, 0, 1540, 1000}},
                        {"right", {1540, 0, 60, 1000}, {0, 0, 1540, 1000}},
                        {"another screen's", {1600, 956, 1600, 44}, area}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(besidePanel(area, row.panel), row.expected);
    }
}

TEST(PopoverPlace, IsBesideItsAnchorAndInsideTheScreen)
{
    struct Row {
        const char* name;
        QRect anchor;
        QPoint expected;
    };

    const QRect area(0, 0, 1600, 1000);
    const Row rows[] = {// NOLINT(modernize-avoid-c-arrays)
                        {"panel at the top", {700, 0, 24, 24}, {532, 30}},
                        {"panel at the bottom", {700, 976, 24, 24}, {532, 410}},
                        {"right edge", {1590, 0, 10, 10}, {1240, 16}},
                        {"left edge", {0, 990, 10, 10}, {0, 424}},
                        {"beside the screen", {2000, 400, 10, 10}, {1240, 416}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(popoverPlace(row.anchor, {360, 560}, area), row.expected);
    }
}

} // namespace

} // namespace tocca::platform::linux
