#pragma once

#include "Platform/Desktop/MainMenu.h"

#include <QStringList>

class QKeyEvent;

namespace tocca::platform::linux {

/// Whether a key event is the menu key `key`: Command is Ctrl, Option is Alt, and the Control key beside Command is Super.
[[nodiscard]] bool matches(const KeyEquivalent& key, const QKeyEvent& event);

/// A menu key as DBusMenu writes it: "Control", "Shift", "z"; empty for an entry without a key.
[[nodiscard]] QStringList busShortcut(const KeyEquivalent& key);

} // namespace tocca::platform::linux
