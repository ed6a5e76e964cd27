#pragma once

#include "Platform/Desktop/MainMenu.h"

#include <QStringList>

class QKeyEvent;

namespace tocca::platform::linux {

/// Whether the key event is the menu key: Command is Ctrl, Option is Alt, and the Control key beside Command is Super.
[[nodiscard]] bool matches(const KeyEquivalent& key, const QKeyEvent& event);

/// The same key as menus on the bus write it: "Control", "Shift", "z"; empty without one.
[[nodiscard]] QStringList busShortcut(const KeyEquivalent& key);

} // namespace tocca::platform::linux
