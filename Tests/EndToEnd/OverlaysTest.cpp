#include "EndToEnd/InterfaceAtWork.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <optional>
#include <thread>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;

constexpr const char* kOther = "Other program";
constexpr int kHudWidth = 320;
constexpr int kHudTop = 32; // below the top of a screen without a camera housing
constexpr int kHudHeight = 46;
constexpr int kGlowHeight = 20;

/// The program on a desktop that composes windows.
class Overlays : public InterfaceAtWork {
protected:
    /// Covers the whole screen with the window of another program, which has the keyboard from then on.
    void cover()
    {
        other.emplace(std::vector<std::string>{OTHER_PROGRAM, "0", "0", std::to_string(screen.width()),
                                               std::to_string(screen.height())});
        ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() == kOther; })) << other->output();
        // It may be in front before it is painted, and is dark until then.
        ASSERT_TRUE(becomesTrue([this] {
            constexpr int kWhite = 200;
            return screen.picture(0, screen.height() / 2, 1, 1).at(0, 0).red > kWhite;
        }));
    }

    void strike(std::uint16_t key)
    {
        hands.press(key);
        std::this_thread::sleep_for(20ms);
        hands.release(key);
    }

    /// Where light falls on the white edge of the screen, as a part of its width; none where there is none.
    [[nodiscard]] std::optional<double> glowCentre() const
    {
        const auto strip = screen.picture(0, screen.height() - kGlowHeight, screen.width(), kGlowHeight);
        double sum = 0;
        double weighted = 0;
        for (int x = 0; x < strip.width; ++x) {
            for (int y = 0; y < strip.height; ++y) {
                const double tint = 255 - strip.at(x, y).blue;
                sum += tint;
                weighted += tint * x;
            }
        }
        constexpr double kAnything = 2000;
        return sum > kAnything ? std::optional(weighted / sum / strip.width) : std::nullopt;
    }

    /// How much of the HUD's place is dark, 0…1.
    [[nodiscard]] double hudDarkness() const
    {
        const auto place = screen.picture(screen.width() / 2 - kHudWidth / 2, kHudTop, kHudWidth, kHudHeight);
        const auto dark = std::count_if(place.pixels.begin(), place.pixels.end(),
                                        [](const auto& pixel) { return pixel.red < 60 && pixel.blue < 60; });
        return static_cast<double>(dark) / static_cast<double>(place.pixels.size());
    }

    instruments::Process compositor{{"picom", "--backend", "xrender", "--config", "/dev/null"}};
    std::optional<instruments::Process> other;
};

TEST_F(Overlays, TheGlowFollowsTheKeysAndGoesOut)
{
    cover();

    struct Case {
        const char* name;
        std::uint16_t key;
        double centre;
    };

    for (const Case& expected :
         {Case{"A", KEY_A, 0.179}, Case{"space", KEY_SPACE, 0.5}, Case{"L", KEY_L, 0.821}}) {
        SCOPED_TRACE(expected.name);
        ASSERT_TRUE(becomesTrue([this] { return !glowCentre(); })) << "the light goes out";
        EXPECT_TRUE(becomesTrue([&] {
            strike(expected.key);
            const auto centre = glowCentre();
            return centre && std::abs(*centre - expected.centre) < 0.06;
        }));
    }
    EXPECT_TRUE(becomesTrue([this] { return !glowCentre(); }));
    EXPECT_EQ(other->countLines("focus lost"), 0);
}

TEST_F(Overlays, TheHudOpensAtTheTopLetsClicksThroughAndLeaves)
{
    click("NOTCH HUD: OFF");
    ASSERT_TRUE(reader.find("NOTCH HUD: ON"));
    cover();
    EXPECT_LT(hudDarkness(), 0.01) << "nothing before a key";

    ASSERT_TRUE(becomesTrue([this] {
        strike(KEY_A);
        return hudDarkness() > 0.5;
    })) << program.output();
    EXPECT_TRUE(becomesTrue([this] {
        strike(KEY_L);
        return glowCentre().has_value();
    }));
    keepPicture("desktop-overlays");
    for (const auto& [x, y] : {std::pair{screen.width() / 2, kHudTop + kHudHeight / 2},
                               std::pair{screen.width() / 2, screen.height() - 5}}) {
        strike(KEY_A);
        clickAt(x, y);
        EXPECT_TRUE(
            other->waitForLine("pressed at " + std::to_string(x) + " " + std::to_string(y), kPatience));
    }
    EXPECT_EQ(screen.activeWindow(), kOther) << "the focus never moves";
    EXPECT_TRUE(becomesTrue([this] { return hudDarkness() < 0.01; })) << "it leaves by itself";
}

} // namespace
} // namespace tocca::endtoend
