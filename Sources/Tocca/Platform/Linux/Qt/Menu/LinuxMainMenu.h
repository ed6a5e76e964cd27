#pragma once

#include "Platform/Desktop/MainMenu.h"
#include "Platform/Linux/Qt/Menu/MenuExport.h"
#include "Platform/Linux/Qt/Menu/StandardActions.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Support/Listeners.h"

#include <functional>
#include <memory>

namespace tocca::platform::linux {

/// The main menu: a table, its keys in the program's own windows, and a copy in the desktop's global menu bar where there is one.
///
/// Lifetime: outlives the windows.
class LinuxMainMenu : public MainMenu {
public:
    LinuxMainMenu(OwnWindows& windows, StandardActions::Commands commands);

    void install(std::vector<Menu> menus, MenuTarget& target) override;

    [[nodiscard]] const std::vector<Menu>& menus() const override { return menus_; }

    [[nodiscard]] bool isShownByDesktop() const override { return export_ && export_->isShown(); }

    [[nodiscard]] Subscription onDesktopChange(std::function<void()> handler) override
    {
        return desktopListeners_.add(std::move(handler));
    }

    [[nodiscard]] MenuItemState validate(const MenuItem& item) const override;
    bool perform(const MenuItem& item) override;

private:
    bool performKey(const QKeyEvent& event);
    [[nodiscard]] MenuNode tree();

    OwnWindows& windows_;
    StandardActions actions_;
    std::vector<Menu> menus_;
    MenuTarget* target_ = nullptr;
    Listeners<> desktopListeners_;
    std::unique_ptr<MenuExport> export_;
};

} // namespace tocca::platform::linux
