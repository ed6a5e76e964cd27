#include "Platform/Linux/Qt/LinuxScreens.h"
#include "Platform/Linux/Qt/Windows/LinuxPanels.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gtest/gtest.h>

#include <QScreen>

#include <csignal>
#include <optional>

namespace tocca::platform::linux {

namespace {

constexpr Rect kFrame{100, 600, 320, 46};

class PanelsDesktop : public ::testing::Test {
protected:
    /// A compositor without shadows and fading, which would be in the way of what is looked at.
    void compose()
    {
        compositor_.emplace(
            std::vector<std::string>{"picom", "--backend", "xrender", "--config", "/dev/null"});
    }

    void stopComposing()
    {
        compositor_->signal(SIGTERM);
        compositor_.reset();
    }

    OwnWindows family_;
    XDesktop desktop_;
    LinuxPanels panels_{family_, desktop_};

private:
    std::optional<instruments::Process> compositor_;
};

TEST_F(PanelsDesktop, IsToBeSeenOnlyWhileSomethingComposesWindows)
{
    Content content;
    const auto panel = panels_.make(kFrame, WindowLevel::statusBar, content.view());
    EXPECT_FALSE(panel->isVisible());
    panel->orderFront();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(content.item, nullptr) << "nothing was loaded for nobody to see";

    compose();
    ASSERT_TRUE(runUntil([&] { return content.isShown(); }));
    EXPECT_EQ(content.item->size(), QSizeF(320, 46));
    stopComposing();
    ASSERT_TRUE(runUntil([&] { return !content.isShown(); }));
    EXPECT_TRUE(panel->isVisible()) << "that is what was asked for";

    panel->orderOut();
    compose();
    ASSERT_TRUE(runUntil([&] { return desktop_.isComposed(); }));
    EXPECT_FALSE(content.window()->isVisible());
    panel->orderFront();
    EXPECT_TRUE(runUntil([&] { return content.isShown(); }));
}

TEST_F(PanelsDesktop, LiesOverEverythingAndIsInNobodysWay)
{
    compose();
    Content content;
    Content other;
    const auto hud = panels_.make(kFrame, WindowLevel::statusBar, content.view());
    const auto glow = panels_.make(kFrame, WindowLevel::floating, other.view());
    const std::string focus = outputOf({"xdotool", "getwindowfocus"});
    hud->orderFront();
    glow->orderFront();
    ASSERT_TRUE(runUntil([&] { return content.isShown() && other.isShown(); }));

    const auto hex = [](unsigned long long id) {
        return QStringLiteral("0x%1").arg(id, 0, 16).toStdString();
    };
    EXPECT_FALSE(contains(property(0, "_NET_CLIENT_LIST"), hex(content.id())))
        << "task bars know nothing of it";
    EXPECT_EQ(outputOf({"xdotool", "getwindowfocus"}), focus);

    const QPoint centre = content.window()->geometry().center();
    const auto windowUnder = [](int x, int y) {
        const std::string text = outputOf(
            {"xdotool", "mousemove", std::to_string(x), std::to_string(y), "getmouselocation", "--shell"});
        return text.substr(text.find("WINDOW="));
    };
    EXPECT_TRUE(runUntil([&] { return windowUnder(centre.x(), centre.y()) == windowUnder(5, 5); }))
        << "the pointer is over what lies beneath";

    EXPECT_TRUE(runUntil([&] {
        const std::string order = outputOf({"xwininfo", "-root", "-children"}); // the highest first
        return order.find(hex(content.id())) < order.find(hex(other.id())) &&
               contains(order, hex(other.id()));
    })) << "the status bar's level is the higher one";
}

TEST_F(PanelsDesktop, DrawsNothingWhileNothingChanges)
{
    compose();
    Content content;
    const auto panel = panels_.make(kFrame, WindowLevel::floating, content.view());
    panel->orderFront();
    ASSERT_TRUE(runUntil([&] { return content.isShown(); }));
    int frames = 0;
    QElapsedTimer quiet;
    quiet.start();
    const QObject context;
    QObject::connect(content.window(), &QQuickWindow::frameSwapped, &context, [&] {
        ++frames;
        quiet.restart();
    });
    constexpr int kLongEnough = 500; // milliseconds; any animation would have drawn dozens of times
    ASSERT_TRUE(runUntil([&] { return quiet.hasExpired(kLongEnough); }));
    EXPECT_LE(frames, 10);
    content.item->update();
    const int before = frames;
    EXPECT_TRUE(runUntil([&] { return frames > before; })) << "and the count counts";
}

TEST(ScreensDesktop, PutsTheOriginAtTheBottomLeftOfTheMainScreen)
{
    const LinuxScreens screens;
    const QRect main = QGuiApplication::primaryScreen()->geometry();
    const auto screen = screens.main();
    ASSERT_TRUE(screen);
    EXPECT_EQ(screen->frame, (Rect{0, 0, double(main.width()), double(main.height())}));
    EXPECT_EQ(screen->safeAreaTop, 0);

    struct Row {
        const char* name;
        Rect frame;
        QRect main;
        QRect expected;
    };

    const Row rows[] = {// NOLINT(modernize-avoid-c-arrays)
                        {"whole screen", {0, 0, 1920, 1080}, {0, 0, 1920, 1080}, {0, 0, 1920, 1080}},
                        {"strip at the bottom", {0, 0, 1920, 40}, {0, 0, 1920, 1080}, {0, 1040, 1920, 40}},
                        {"capsule at the top", {800, 1002, 320, 46}, {0, 0, 1920, 1080}, {800, 32, 320, 46}},
                        {"screen to the right", {10, 10, 20, 30}, {1280, 100, 800, 600}, {1290, 660, 20, 30}},
                        {"half points", {0.5, 0.5, 10, 10}, {0, 0, 100, 100}, {1, 90, 10, 10}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(qtRect(row.frame, row.main), row.expected);
    }
    EXPECT_EQ(pixelRect({0, 0, 1067, 20}, {0, 0, 1600, 1000}, 1.5), QRect(0, 970, 1600, 30))
        << "at the edge, although no whole number of points is as wide as the screen";
    EXPECT_EQ(pixelRect({0, 0, 640, 20}, {1280, 100, 1280, 500}, 2), QRect(1280, 560, 1280, 40));
}

} // namespace

} // namespace tocca::platform::linux
