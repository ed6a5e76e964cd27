#pragma once

#include "Platform/Desktop/MainMenu.h"

#include <string>

namespace tocca::ui {

/// How a key equivalent reads at the right end of a menu item: "Ctrl+Shift+Z"; empty for none. Threads: any.
[[nodiscard]] std::string keyEquivalentText(const platform::KeyEquivalent& equivalent);

} // namespace tocca::ui
