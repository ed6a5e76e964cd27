#pragma once

class QWindow;

namespace tocca::platform::linux {

/// Brings a window that is shown to the front, on the desktop that the person is on, with the keyboard.
/// Threads: main. Errors: none; a desktop may keep what the person types into where it is.
void bringToFront(QWindow& window);

} // namespace tocca::platform::linux
