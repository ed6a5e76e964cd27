#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tocca::platform::linux {

/// A menu as it is at one moment: an entry, a separator when its label is empty, or a submenu when it has children.
struct MenuNode {
    QString label{};
    bool isEnabled = true;
    bool isCheckable = false;
    bool isChecked = false;
    QStringList shortcut{}; ///< as on the bus: "Control", "Shift", "z"
    std::function<void()> choose{};
    std::vector<MenuNode> children{};
};

/// Makes the menu when somebody looks at it.
using MenuSource = std::function<MenuNode()>;

} // namespace tocca::platform::linux
