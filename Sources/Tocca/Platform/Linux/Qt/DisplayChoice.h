#pragma once

namespace tocca::platform::linux {

/// Chooses where Qt shows the windows, unless QT_QPA_PLATFORM says so already.
///
/// An X server that answers comes first, XWayland included, because a Wayland compositor lets no program place a popover or an overlay.
/// Then comes Wayland. Without a display the program runs all the same, and nobody sees its windows.
/// Threads: main. Order: before the application object.
void chooseDisplay();

} // namespace tocca::platform::linux
