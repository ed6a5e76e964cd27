#pragma once

#include "Support/Subscription.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::platform {

/// A key that chooses a menu item. An empty `key` is none; a capital letter means Shift as well.
struct KeyEquivalent {
    std::string key;
    bool command = true; ///< Control, where the keyboard's custom is that
    bool option = false;
    bool control = false; ///< the Control key in addition to Command

    bool operator==(const KeyEquivalent&) const = default;
};

/// An entry of a menu; a separator when `action` is empty.
struct MenuItem {
    std::string title;
    std::string action; ///< what it does, by selector: "terminate:"
    KeyEquivalent keyEquivalent;
    bool isCheckable = false; ///< has a place for a check mark, ticked or not

    bool operator==(const MenuItem&) const = default;
};

struct Menu {
    std::string title; ///< empty for the application's own
    std::vector<MenuItem> items;

    bool operator==(const Menu&) const = default;
};

struct MenuItemState {
    bool isEnabled = true;
    bool isChecked = false;

    bool operator==(const MenuItemState&) const = default;
};

/// The end of the responder chain: what no window and no text field has an answer to. Threads: main.
class MenuTarget {
public:
    virtual ~MenuTarget() = default;

    /// False when `action` is not the target's.
    virtual bool performMenuAction(std::string_view action) = 0;

    /// Asked before the item is shown and before it is chosen.
    [[nodiscard]] virtual MenuItemState validateMenuItem(const MenuItem& item) = 0;
};

/// The program's main menu and its key equivalents, which hold in all of its windows. Threads: main, calls included.
///
/// The desktop answers the standard actions itself: the about panel, hiding and showing programs, quitting, closing, minimising
/// and zooming the key window, and editing in the text field that has the focus. The target gets all others.
class MainMenu {
public:
    virtual ~MainMenu() = default;

    virtual void install(std::vector<Menu> menus, MenuTarget& target) = 0;

    /// What was installed.
    [[nodiscard]] virtual const std::vector<Menu>& menus() const = 0;

    /// Whether the desktop shows the menu outside the program's windows.
    [[nodiscard]] virtual bool isShownByDesktop() const = 0;

    /// Calls `handler` when the answer of `isShownByDesktop` changes.
    [[nodiscard]] virtual Subscription onDesktopChange(std::function<void()> handler) = 0;

    /// Whether the item could be chosen now, and its check mark.
    [[nodiscard]] virtual MenuItemState validate(const MenuItem& item) const = 0;

    /// Does what choosing the item does. False when nothing answers to the action or the item is disabled.
    virtual bool perform(const MenuItem& item) = 0;
};

} // namespace tocca::platform
