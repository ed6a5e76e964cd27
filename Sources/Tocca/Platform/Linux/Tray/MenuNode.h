#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tocca::platform::linux {

/// An entry of a menu as it is at one moment. It is a separator when its label is empty, and a submenu when it has children.
struct MenuNode {
    QString label{};
    bool isEnabled = true;
    bool isCheckable = false;
    bool isChecked = false;
    QStringList shortcut{}; ///< as in DBusMenu: "Control", "Shift", "z"
    std::function<void()> choose{};
    std::vector<MenuNode> children{};
};

/// Makes the menu anew whenever somebody looks at it.
using MenuSource = std::function<MenuNode()>;

} // namespace tocca::platform::linux
