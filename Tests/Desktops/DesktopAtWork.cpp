#include "Desktops/DesktopAtWork.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <linux/input-event-codes.h>
#include <stdexcept>
#include <thread>

namespace tocca::desktops {

namespace {

using namespace std::chrono_literals;

constexpr const char* kOther = "Other program";
constexpr int kLeastHeight = 400; // of the Studio; overlays are lower

bool isInstalled(const std::string& program)
{
    instruments::Process which({"sh", "-c", "command -v " + program});
    return which.waitForExit(kPatience) == 0;
}

} // namespace

Surroundings::Surroundings()
    : hasManager(isInstalled(GetParam()))
{
    if (hasManager) {
        instruments::Process change({PRIVATE_SESSION_SCRIPT, "window-manager", GetParam()});
        if (change.waitForExit(60s) != 0) {
            throw std::runtime_error(GetParam() + ": " + change.output());
        }
    }
}

void DesktopAtWork::SetUp()
{
    if (!hasManager) {
        const char* const automatic = std::getenv("CI");
        ASSERT_FALSE(automatic != nullptr && std::string(automatic) == "true") << "not installed";
        GTEST_SKIP() << GetParam() << " is not installed";
    }
    InterfaceAtWork::SetUp();
}

void DesktopAtWork::cover(int width, int height)
{
    other.reset();
    other.emplace(
        std::vector<std::string>{OTHER_PROGRAM, "0", "0", std::to_string(width), std::to_string(height)});
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() == kOther; })) << other->output();
    // It may be in front before it is painted, and is dark until then.
    ASSERT_TRUE(becomesTrue([this] {
        constexpr int kWhite = 200;
        const auto windows = screen.windowsOf(other->id());
        if (windows.empty()) {
            return false;
        }
        const auto& window = windows.front();
        return screen.picture(window.x + window.width / 2, window.y + window.height / 2, 1, 1).at(0, 0).red >
               kWhite;
    }));
}

void DesktopAtWork::closeStudio()
{
    constexpr const char* kStudio = "Tocca Studio";
    const auto isShown = [this] {
        const Windows all = screen.windowsOf(program.id());
        return std::any_of(all.begin(), all.end(),
                           [](const auto& window) { return window.height > kLeastHeight; });
    };
    ASSERT_TRUE(becomesTrue([&] { return screen.activeWindow() == kStudio; })) << program.output();
    ASSERT_TRUE(becomesTrue([&] {
        if (isShown()) {
            chord({KEY_LEFTCTRL, KEY_W});
        }
        return becomesTrue([&] { return !isShown(); }, 500ms);
    })) << program.output();
}

void DesktopAtWork::strike(std::uint16_t key)
{
    hands.press(key);
    std::this_thread::sleep_for(20ms);
    hands.release(key);
}

DesktopAtWork::Windows DesktopAtWork::windowsOfHeight(int height) const
{
    const Windows all = screen.windowsOf(program.id());
    Windows matching;
    std::copy_if(all.begin(), all.end(), std::back_inserter(matching),
                 [&](const auto& window) { return window.height == height; });
    return matching;
}

std::string nameOf(const testing::TestParamInfo<std::string>& info)
{
    return info.param;
}

} // namespace tocca::desktops
