#pragma once

#include "Platform/Desktop/Application.h"
#include "Platform/Desktop/MainMenu.h"
#include "UI/ViewFactory.h"

#include <functional>
#include <memory>

namespace tocca::keyboard {
class KeyboardMonitor;
}

namespace tocca::platform {
class Popover;
class StatusItem;
class Window;
struct Host;
} // namespace tocca::platform

namespace tocca::ui {
class NotchAcousticHUDController;
class SpatialUnderglowController;
} // namespace tocca::ui

namespace tocca::app {

/// Brings the program up and owns its status item, its popover and the Studio window.
///
/// The program lives in the tray: closing the Studio window hides it, and only "Quit Tocca" ends the program. It is in task bar and
/// switcher only while the Studio window is shown.
/// Threads: main.
class AppDelegate final : public platform::ApplicationDelegate, public platform::MenuTarget {
public:
    /// What the delegate brings up. Functions, because making the popover's view is what makes the controllers, in their order.
    struct Collaborators {
        ui::ViewFactory views;
        std::function<keyboard::KeyboardMonitor&()> keyboardMonitor;
        std::function<ui::NotchAcousticHUDController&()> notchHUD;
        std::function<ui::SpatialUnderglowController&()> underglow;

        /// The default views and the `shared` controllers.
        [[nodiscard]] static Collaborators shared();
    };

    /// Makes the popover and becomes the `shared` delegate.
    AppDelegate(platform::Host& host, Collaborators collaborators);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate() override;

    /// The delegate, or null while there is none.
    [[nodiscard]] static AppDelegate* shared() noexcept { return shared_; }

    void applicationDidFinishLaunching() override;
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;

    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() override { return false; }

    bool performMenuAction(std::string_view action) override;
    [[nodiscard]] platform::MenuItemState validateMenuItem(const platform::MenuItem& item) override;

    /// Opens the popover, or closes it. Opening asks anew whether the session may be heard.
    void togglePopover();

    /// Brings the Studio window up, making it the first time, and closes the popover.
    void showMainWindow();

    /// Switches the notch HUD on or off.
    void toggleNotchHUD();

private:
    void setupMainMenu();
    void makeMainWindow();
    [[nodiscard]] bool windowShouldClose();

    static inline AppDelegate* shared_ = nullptr;

    platform::Host& host_;
    const Collaborators collaborators_;
    std::unique_ptr<platform::StatusItem> statusItem_;
    std::unique_ptr<platform::Popover> popover_;
    std::unique_ptr<platform::Window> mainWindow_; // made when first shown
};

} // namespace tocca::app
