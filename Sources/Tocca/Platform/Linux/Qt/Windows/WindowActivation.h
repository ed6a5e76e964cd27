#pragma once

class QWindow;

namespace tocca::platform::linux {

/// Brings a visible window to the front of the current desktop and gives it the keyboard.
/// Threads: main. Errors: none; a desktop may refuse to move the keyboard.
void bringToFront(QWindow& window);

} // namespace tocca::platform::linux
