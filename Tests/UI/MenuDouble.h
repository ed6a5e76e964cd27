#pragma once

#include "App/MainMenuTable.h"
#include "Platform/Desktop/MainMenu.h"

#include <string>
#include <string_view>
#include <vector>

namespace tocca::ui {

/// Answers for the main menu: there is nothing to undo, and the HUD is on unless it is said to be off.
class MenuDouble final : public platform::MenuTarget {
public:
    bool performMenuAction(std::string_view action) override
    {
        performed.emplace_back(action);
        return true;
    }

    platform::MenuItemState validateMenuItem(const platform::MenuItem& item) override
    {
        return {.isEnabled = item.action != "undo:",
                .isChecked = isHudOn && item.action == app::kToggleNotchHUD};
    }

    bool isHudOn = true;
    std::vector<std::string> performed;
};

} // namespace tocca::ui
