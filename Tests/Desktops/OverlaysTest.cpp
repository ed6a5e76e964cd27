#include "Desktops/DesktopAtWork.h"
#include "Instruments/Desktop/DockPanel.h"
#include "Instruments/Desktop/Monitors.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <random>

namespace tocca::desktops {
namespace {

using namespace std::chrono_literals;
using instruments::DockPanel;
using instruments::Monitors;
using instruments::VisibleWindow;

constexpr int kGlowHeight = 20;
constexpr int kHudWidth = 320;
constexpr int kHudHeight = 46;
constexpr int kHudTop = 32; // below the top of a screen without a camera housing

class Overlays : public DesktopAtWork {
protected:
    [[nodiscard]] bool isGlowAt(int x, int bottom, int width) const
    {
        const auto strips = windowsOfHeight(kGlowHeight);
        return strips.size() == 1 && strips[0].x == x && strips[0].y + kGlowHeight == bottom &&
               strips[0].width == width;
    }

    [[nodiscard]] bool isHudAtItsPlace() const
    {
        const auto huds = windowsOfHeight(kHudHeight);
        return huds.size() == 1 && huds[0].x == (screen.width() - kHudWidth) / 2 && huds[0].y == kHudTop &&
               huds[0].width == kHudWidth;
    }

    /// Whether a key makes the glow shine at the edge, over whatever is there.
    [[nodiscard]] bool glows(std::chrono::milliseconds deadline = kPatience)
    {
        return becomesTrue(
            [this] {
                hands.press(KEY_G);
                const auto end = std::chrono::steady_clock::now() + 150ms;
                bool shines = false;
                while (!shines && std::chrono::steady_clock::now() < end) {
                    const auto row = screen.picture(0, screen.height() - 1, screen.width(), 1);
                    shines = std::any_of(row.pixels.begin(), row.pixels.end(), [](const auto& pixel) {
                        return pixel.red > 150 && pixel.red > pixel.blue + 60;
                    });
                }
                hands.release(KEY_G);
                return shines;
            },
            deadline);
    }

    /// How much of the HUD's place is dark, 0…1.
    [[nodiscard]] double hudDarkness() const
    {
        const auto place = screen.picture((screen.width() - kHudWidth) / 2, kHudTop, kHudWidth, kHudHeight);
        const auto dark = std::count_if(place.pixels.begin(), place.pixels.end(),
                                        [](const auto& pixel) { return pixel.red < 60 && pixel.blue < 60; });
        return static_cast<double>(dark) / static_cast<double>(place.pixels.size());
    }

    void switchHudOn()
    {
        // A window that is still on its way to its place is missed by a click.
        ASSERT_TRUE(becomesTrue([this] {
            if (reader.find("NOTCH HUD: OFF", {}, 100ms)) {
                click("NOTCH HUD: OFF");
            }
            return reader.find("NOTCH HUD: ON", {}, 3s).has_value();
        }));
    }

    /// Strikes keys until the HUD is open.
    [[nodiscard]] bool opensHud()
    {
        return becomesTrue([this] {
            strike(KEY_G);
            return hudDarkness() > 0.5;
        });
    }

    std::optional<DockPanel> panel{std::in_place, DockPanel::Edge::bottom, kPanel};
};

TEST_P(Overlays, LieAtTheScreensEdgesInFrontOfOtherProgramsAndInNobodysWay)
{
    switchHudOn();
    EXPECT_TRUE(becomesTrue([this] { return isGlowAt(0, screen.height(), screen.width()); }))
        << "at the bottom edge, in front of the panel";
    cover(900, 700);
    EXPECT_TRUE(glows());
    EXPECT_TRUE(opensHud());
    EXPECT_TRUE(isHudAtItsPlace());
    keepPicture("overlays");
    for (const int height : {kGlowHeight, kHudHeight}) {
        for (const VisibleWindow& window : windowsOfHeight(height)) {
            EXPECT_FALSE(screen.isListed(window.id)) << "a task bar would have it: " << height;
        }
    }

    EXPECT_TRUE(isGlowAt(0, screen.height(), screen.width())) << "still, with another program in front";
    clickAt(screen.width() / 3, screen.height() - 5);
    EXPECT_TRUE(panel->waitForPress()) << "the click on the glow was for the panel";

    cover(0, 0); // the whole screen, in front of the panel as well
    EXPECT_TRUE(opensHud());
    EXPECT_TRUE(isHudAtItsPlace()) << "wherever it was the last time";
    EXPECT_TRUE(glows());
    keepPicture("overlays-full-screen");
    for (const auto& [x, y] : {std::pair{screen.width() / 2, kHudTop + kHudHeight / 2},
                               std::pair{screen.width() / 2, screen.height() - 5}}) {
        strike(KEY_A);
        clickAt(x, y);
        EXPECT_TRUE(
            other->waitForLine("pressed at " + std::to_string(x) + " " + std::to_string(y), kPatience));
    }
    EXPECT_EQ(other->countLines("focus lost"), 0);
}

/// A desktop whose monitors, scale and panels somebody changes at random.
class RestlessDesktop {
public:
    RestlessDesktop(instruments::DisplaySettings& settings, int width, int height)
        : settings_(settings)
        , monitors_(width, height)
        , display_{.width = width, .height = height}
    {
        settings_.set("Xft/DPI", dpi_);
    }

    RestlessDesktop(const RestlessDesktop&) = delete;
    RestlessDesktop& operator=(const RestlessDesktop&) = delete;

    ~RestlessDesktop() { settings_.set("Xft/DPI", kNormalDpi); }

    /// Changes something; says what.
    std::string change()
    {
        switch (pick(4)) {
        case 0:
            return resize();
        case 1:
            return divide();
        case 2:
            return scale();
        default:
            return changePanels();
        }
    }

    [[nodiscard]] double scaleFactor() const { return static_cast<double>(dpi_) / kNormalDpi; }

private:
    static constexpr int kNormalDpi = 96 * 1024;

    int pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

    std::string resize()
    {
        static constexpr std::array<std::pair<int, int>, 4> kSizes{
            {{1600, 1000}, {1366, 768}, {1280, 1000}, {1024, 600}}};
        const auto [width, height] = kSizes.at(static_cast<std::size_t>(pick(kSizes.size())));
        monitors_.useOne(width, height);
        display_ = {.x = 0, .y = 0, .width = width, .height = height};
        return "one monitor of " + std::to_string(width) + " × " + std::to_string(height);
    }

    std::string divide()
    {
        std::vector<Monitors::Monitor> parts(2, display_);
        const bool isSideBySide = pick(2) == 0;
        if (isSideBySide) {
            parts[0].width = parts[1].x = display_.width / 2;
            parts[1].width = display_.width - parts[0].width;
            parts[1].height -= pick(3) * 40; // a lower one has room beneath it
        } else {
            parts[0].height = parts[1].y = display_.height / 2;
            parts[1].height = display_.height - parts[0].height;
        }
        if (pick(2) == 0) {
            std::swap(parts[0], parts[1]);
        }
        monitors_.divide(parts);
        return std::string("two monitors ") + (isSideBySide ? "side by side" : "one above the other") +
               ", the main one at " + std::to_string(parts[0].x) + ", " + std::to_string(parts[0].y);
    }

    std::string scale()
    {
        static constexpr std::array<int, 4> kPercent{100, 125, 150, 200};
        const int percent = kPercent.at(static_cast<std::size_t>(pick(kPercent.size())));
        dpi_ = kNormalDpi * percent / 100;
        settings_.set("Xft/DPI", dpi_);
        return std::to_string(percent) + " %";
    }

    std::string changePanels()
    {
        const bool isTop = pick(2) == 0;
        auto& panel = isTop ? top_ : bottom_;
        if (panel) {
            panel.reset();
        } else {
            panel.emplace(isTop ? DockPanel::Edge::top : DockPanel::Edge::bottom, 24 + pick(40));
        }
        return std::string(panel ? "a panel at the " : "no panel at the ") + (isTop ? "top" : "bottom");
    }

    instruments::DisplaySettings& settings_;
    Monitors monitors_;
    Monitors::Monitor display_;
    int dpi_ = kNormalDpi;
    std::optional<DockPanel> top_;
    std::optional<DockPanel> bottom_;
    std::mt19937 random_{300}; // NOLINT(cert-msc51-cpp): the same changes each time
};

TEST_P(Overlays, TheGlowIsAtTheBottomEdgeAtEveryRest)
{
    constexpr int kChanges = 300;
    constexpr int kMostAtOnce = 5;
    constexpr auto kRest = 30ms;
    panel.reset();
    RestlessDesktop desktop(settings, screen.width(), screen.height());
    std::vector<VisibleWindow> found;
    const auto isAtTheEdge = [&] {
        const auto main = screen.mainMonitor();
        const double height = kGlowHeight * desktop.scaleFactor();
        found = screen.windowsOf(program.id());
        return std::count_if(found.begin(), found.end(), [&](const VisibleWindow& window) {
                   return window.x == main.x && std::abs(window.width - main.width) <= 1 &&
                          window.y + window.height == main.y + main.height &&
                          std::abs(window.height - height) <= 1;
               }) == 1;
    };
    std::string changes;
    int done = 0;
    while (done < kChanges) {
        changes.clear();
        for (int left = std::uniform_int_distribution(1, kMostAtOnce)(random); left > 0; --left, ++done) {
            changes += desktop.change() + "; ";
        }
        ASSERT_TRUE(becomesTrue([&] {
            const auto since = std::chrono::steady_clock::now();
            while (isAtTheEdge()) {
                if (std::chrono::steady_clock::now() - since >= kRest) {
                    return true;
                }
            }
            return false;
        })) << "after change "
            << done << ": " << changes << [&] {
                   std::string places;
                   for (const VisibleWindow& window : found) {
                       places += "\n" + std::to_string(window.width) + " × " + std::to_string(window.height) +
                                 " at " + std::to_string(window.x) + ", " + std::to_string(window.y);
                   }
                   return places;
               }();
    }
}

INSTANTIATE_TEST_SUITE_P(Desktops, Overlays, allManagers(), nameOf);

} // namespace
} // namespace tocca::desktops
