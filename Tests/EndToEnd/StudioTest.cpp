#include "EndToEnd/InterfaceAtWork.h"
#include "Instruments/Likeness.h"
#include "Instruments/Now.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <linux/input-event-codes.h>
#include <thread>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;
using instruments::now;

constexpr const char* kStudio = "Tocca Studio";
constexpr const char* kImported = "Walnut Board";

struct Switch {
    const char* title;
    const char* folder;
};

constexpr std::array<Switch, 5> kSwitches{{{"Cherry MX Blue", "mx-blue"},
                                           {"Cherry MX Brown", "mx-brown"},
                                           {"NK Cream", "nk-cream"},
                                           {"Typewriter", "typewriter"},
                                           {"Holy Panda", "holy-panda"}}};

/// Puts an imported pack, which sounds like one of the switches, where the program looks for it.
struct ImportedPack {
    ImportedPack()
    {
        const auto packs = std::filesystem::path(std::getenv("XDG_DATA_HOME")) / "Tocca/CustomSoundPacks";
        std::filesystem::create_directories(packs);
        std::filesystem::copy(std::filesystem::path(SOUND_PACKS_DIRECTORY) / "mx-blue", packs / kImported,
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::skip_existing);
    }
};

class Studio : private ImportedPack, public InterfaceAtWork {
protected:
    /// The built-in pack that a key sounds like now.
    std::string soundOfAKey()
    {
        std::this_thread::sleep_for(300ms); // beyond the sound of what was chosen
        const instruments::Hearing hearing = typeAndHear(std::array<std::uint16_t, 1>{KEY_G});
        if (hearing.heard() != 1) {
            return "silence";
        }
        const double time = hearing.ofStroke.front()->time;
        const auto recording = recorder->recording();
        return instruments::mostLike(recording.between(time - 0.003, time + 0.030), packs).slot;
    }

    /// Whether the badge of the active switch is on the card of that title, and only there.
    bool isActive(const std::string& title)
    {
        const auto controls = reader.controls();
        const auto card =
            std::find_if(controls.begin(), controls.end(), [&](const instruments::Control& control) {
                return control.name == title && control.isShowing && control.height > 60;
            });
        const auto isBadge = [](const instruments::Control& control) {
            return control.name == "ACTIVE" && control.isShowing;
        };
        const auto badge = std::find_if(controls.begin(), controls.end(), isBadge);
        return card != controls.end() && std::count_if(controls.begin(), controls.end(), isBadge) == 1 &&
               badge->x > card->x && badge->x < card->x + card->width && badge->y > card->y &&
               badge->y < card->y + card->height;
    }

    /// The middle of what is amber in the page, in pixels of the window, and how much that is.
    std::pair<double, int> amber()
    {
        constexpr int kSidebar = 240;
        const auto studio = window(kStudio);
        if (!studio) {
            return {0, 0};
        }
        const auto page =
            screen.picture(studio->x + kSidebar, studio->y + 150, studio->width - kSidebar, 350);
        double sum = 0;
        int count = 0;
        for (int y = 0; y < page.height; ++y) {
            for (int x = 0; x < page.width; ++x) {
                const auto& pixel = page.at(x, y);
                if (pixel.red > 200 && pixel.green > 90 && pixel.green < 160 && pixel.blue < 80) {
                    sum += x;
                    ++count;
                }
            }
        }
        return {count > 0 ? sum / count : 0, count};
    }

    static std::vector<instruments::PackRecording> readAllPacks()
    {
        std::vector<instruments::PackRecording> all;
        for (const Switch& each : kSwitches) {
            for (instruments::PackRecording& recording :
                 instruments::readPack(std::filesystem::path(SOUND_PACKS_DIRECTORY) / each.folder)) {
                if (recording.slot == "press_standard") {
                    recording.slot = each.folder;
                    all.push_back(std::move(recording));
                }
            }
        }
        return all;
    }

    const std::vector<instruments::PackRecording> packs = readAllPacks();
};

TEST_F(Studio, ASwitchChosenInTheShowroomIsHeardAndMarked)
{
    listen();
    for (const Switch& each : kSwitches) {
        SCOPED_TRACE(each.title);
        click(std::string("Audition ") + each.title);
        EXPECT_TRUE(becomesTrue([&] { return isActive(each.title); }));
        EXPECT_EQ(soundOfAKey(), each.folder);
    }
    click(std::string("Audition ") + kImported);
    EXPECT_TRUE(becomesTrue([&] { return isActive(kImported); }));
    EXPECT_EQ(soundOfAKey(), "mx-blue");
    keepPicture("desktop-showroom");
}

TEST_F(Studio, TheCapOfAPressedKeyLightsUp)
{
    click("Keyboard Stage");
    ASSERT_TRUE(reader.find("Keyboard Stage", "heading"));
    ASSERT_TRUE(becomesTrue([this] { return amber().second == 0; }));

    double previous = 0;
    for (const std::uint16_t key : std::array<std::uint16_t, 3>{KEY_A, KEY_G, KEY_L}) { // from left to right
        double pressed = 0;
        double middle = 0;
        ASSERT_TRUE(becomesTrue([&] {
            pressed = hands.press(key);
            hands.release(key);
            // A cap goes out 0.12 s after its press.
            while (now() - pressed < 0.1) {
                const auto [place, count] = amber();
                if (count > 20) {
                    middle = place;
                    return true;
                }
            }
            std::this_thread::sleep_for(100ms);
            return false;
        })) << "no cap lights up";
        std::cout << "lit after " << (now() - pressed) * 1000 << " ms\n";
        EXPECT_GT(middle, previous + 10);
        previous = middle;
        ASSERT_TRUE(becomesTrue([this] { return amber().second == 0; })) << "the cap goes out again";
    }
    hands.press(KEY_G);
    EXPECT_TRUE(becomesTrue([this] { return amber().second > 20; }));
    hands.release(KEY_G);
    keepPicture("desktop-stage");
}

} // namespace
} // namespace tocca::endtoend
