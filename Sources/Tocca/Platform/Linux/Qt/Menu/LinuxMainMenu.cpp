#include "Platform/Linux/Qt/Menu/LinuxMainMenu.h"

#include "Platform/Linux/Qt/Menu/KeyMatch.h"

#include <QDBusConnection>

#include <utility>

namespace tocca::platform::linux {

LinuxMainMenu::LinuxMainMenu(OwnWindows& windows, StandardActions::Commands commands)
    : windows_(windows)
    , actions_(windows, std::move(commands))
{
    windows_.setKeyHandler([this](const QKeyEvent& event) { return performKey(event); });
}

void LinuxMainMenu::install(std::vector<Menu> menus, MenuTarget& target)
{
    menus_ = std::move(menus);
    target_ = &target;
    const auto bus = QDBusConnection::sessionBus();
    if (!export_ && bus.isConnected()) {
        export_ = std::make_unique<MenuExport>(
            bus, windows_, [this] { return tree(); }, [this] { desktopListeners_.call(); });
    }
}

MenuItemState LinuxMainMenu::validate(const MenuItem& item) const
{
    return target_ != nullptr ? target_->validateMenuItem(item) : MenuItemState{};
}

bool LinuxMainMenu::perform(const MenuItem& item)
{
    if (item.action.empty() || !validate(item).isEnabled) {
        return false;
    }
    return actions_.perform(item.action) || (target_ != nullptr && target_->performMenuAction(item.action));
}

bool LinuxMainMenu::performKey(const QKeyEvent& event)
{
    for (const Menu& menu : menus_) {
        for (const MenuItem& item : menu.items) {
            if (matches(item.keyEquivalent, event)) {
                // A copy, as the action may install another table. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
                const MenuItem chosen = item;
                perform(chosen);
                return true;
            }
        }
    }
    return false;
}

MenuNode LinuxMainMenu::tree()
{
    MenuNode root;
    for (const Menu& menu : menus_) {
        MenuNode top{.label =
                         menu.title.empty() ? QStringLiteral("Tocca") : QString::fromStdString(menu.title)};
        for (const MenuItem& item : menu.items) {
            if (item.action.empty()) {
                top.children.emplace_back();
                continue;
            }
            const MenuItemState state = validate(item);
            top.children.push_back({.label = QString::fromStdString(item.title),
                                    .isEnabled = state.isEnabled,
                                    .isCheckable = item.isCheckable,
                                    .isChecked = state.isChecked,
                                    .shortcut = busShortcut(item.keyEquivalent),
                                    .choose = [this, item] { perform(item); },
                                    .children = {}});
        }
        root.children.push_back(std::move(top));
    }
    return root;
}

} // namespace tocca::platform::linux
