#pragma once

#include "Platform/Desktop/MainMenu.h"

#include <string_view>
#include <vector>

namespace tocca::app {

/// The one action of the main menu that is the program's own.
inline constexpr std::string_view kToggleNotchHUD = "toggleNotchHUD:";

/// The five menus of the main menu, the application's own first.
[[nodiscard]] std::vector<platform::Menu> mainMenuTable();

} // namespace tocca::app
