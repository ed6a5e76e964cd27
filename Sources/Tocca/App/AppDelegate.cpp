#include "App/AppDelegate.h"

#include "App/MainMenuTable.h"
#include "App/StatusIcon.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Desktop/Popovers.h"
#include "Platform/Desktop/StatusBar.h"
#include "Platform/Desktop/Windows.h"
#include "Platform/Host.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/StudioTheme.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <utility>

namespace tocca::app {
namespace {

constexpr platform::Size kPopoverSize{360, 560};
constexpr platform::Size kWindowSize{960, 650};
constexpr platform::Size kSmallestWindow{880, 600};

} // namespace

AppDelegate::Collaborators AppDelegate::Collaborators::shared()
{
    return {.views = ui::defaultViews(),
            .keyboardMonitor = &keyboard::KeyboardMonitor::shared,
            .notchHUD = &ui::NotchAcousticHUDController::shared,
            .underglow = &ui::SpatialUnderglowController::shared};
}

AppDelegate::AppDelegate(platform::Host& host, Collaborators collaborators)
    : host_(host)
    , collaborators_(std::move(collaborators))
    , popover_(host.popovers.make())
{
    shared_ = this;
}

AppDelegate::~AppDelegate()
{
    if (shared_ == this) {
        shared_ = nullptr;
    }
}

void AppDelegate::applicationDidFinishLaunching()
{
    popover_->setContentSize(kPopoverSize);
    popover_->setContent(collaborators_.views.menuBar());
    statusItem_ = host_.statusBar.makeStatusItem();
    if (statusItem_->hasButton()) {
        statusItem_->setIcon(statusIcon());
        statusItem_->setAction([this] { togglePopover(); });
    }
    if (auto& monitor = collaborators_.keyboardMonitor(); monitor.checkPermission()) {
        monitor.start();
    }
    collaborators_.notchHUD().setup();
    collaborators_.underglow().setup();
    setupMainMenu();
    showMainWindow();
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    showMainWindow();
    return true;
}

bool AppDelegate::performMenuAction(std::string_view action)
{
    if (action != kToggleNotchHUD) {
        return false;
    }
    toggleNotchHUD();
    return true;
}

platform::MenuItemState AppDelegate::validateMenuItem(const platform::MenuItem& item)
{
    return {.isEnabled = true,
            .isChecked = item.action == kToggleNotchHUD && collaborators_.notchHUD().isEnabled.get()};
}

void AppDelegate::togglePopover()
{
    if (!statusItem_ || !statusItem_->hasButton()) {
        return;
    }
    if (popover_->isShown()) {
        popover_->close();
        return;
    }
    collaborators_.keyboardMonitor().checkPermission();
    popover_->setBackground(ui::StudioTheme::chassisBg);
    popover_->show(*statusItem_);
}

void AppDelegate::showMainWindow()
{
    if (!mainWindow_) {
        makeMainWindow();
    }
    host_.application.setActivationPolicy(platform::ActivationPolicy::regular);
    mainWindow_->makeKeyAndOrderFront();
    host_.application.activate();
    if (popover_->isShown()) {
        popover_->close();
    }
}

void AppDelegate::toggleNotchHUD()
{
    auto& isEnabled = collaborators_.notchHUD().isEnabled;
    isEnabled.set(!isEnabled.get());
}

void AppDelegate::setupMainMenu()
{
    host_.mainMenu.install(mainMenuTable(), *this);
}

void AppDelegate::makeMainWindow()
{
    mainWindow_ = host_.windows.make({.title = "Tocca Studio",
                                      .contentSize = kWindowSize,
                                      .minimumSize = kSmallestWindow,
                                      .background = ui::StudioTheme::chassisBg},
                                     collaborators_.views.mainWindow());
    mainWindow_->center();
    mainWindow_->setShouldClose([this] { return windowShouldClose(); });
}

bool AppDelegate::windowShouldClose()
{
    mainWindow_->orderOut();
    host_.application.setActivationPolicy(platform::ActivationPolicy::accessory);
    return false;
}

} // namespace tocca::app
