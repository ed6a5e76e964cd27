#pragma once

#include "EndToEnd/InterfaceAtWork.h"
#include "Instruments/Desktop/DisplaySettings.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace tocca::desktops {

using instruments::becomesTrue;
using instruments::kPatience;

/// How thick the panel is along the bottom of the screen, in pixels.
inline constexpr int kPanel = 44;

/// What a desktop does to windows, and what it tells its programs. It is there before the program starts.
class Surroundings : public testing::WithParamInterface<std::string> {
protected:
    /// Takes the window manager of this name, and none where it is not installed.
    Surroundings();

    bool hasManager = false;
    instruments::DisplaySettings settings;
};

/// The program under each window manager.
class DesktopAtWork : public Surroundings, public endtoend::InterfaceAtWork {
protected:
    using Windows = std::vector<instruments::VisibleWindow>;

    /// Skips the test where the window manager is not installed, which an automatic run takes for a failure.
    void SetUp() override;

    /// Puts a white window of another program in front; without a width it takes the whole screen.
    void cover(int width, int height);

    /// Closes the program's own window, once it is there and has the keyboard.
    void closeStudio();

    void strike(std::uint16_t key);

    /// The program's windows of this height.
    [[nodiscard]] Windows windowsOfHeight(int height) const;

    /// Keeps a picture of the screen under the window manager's name.
    void keepPicture(const std::string& name) const { InterfaceAtWork::keepPicture(GetParam() + "-" + name); }

    std::optional<instruments::Process> other;
};

/// How a test names the window manager it runs under.
[[nodiscard]] std::string nameOf(const testing::TestParamInfo<std::string>& info);

/// For INSTANTIATE_TEST_SUITE_P.
[[nodiscard]] inline auto allManagers()
{
    return testing::Values("kwin_x11", "mutter", "xfwm4", "openbox", "i3");
}

} // namespace tocca::desktops
