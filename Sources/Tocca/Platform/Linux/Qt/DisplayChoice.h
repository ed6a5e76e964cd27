#pragma once

#include <optional>
#include <string>

namespace tocca::platform::linux {

/// Chooses where Qt shows the windows, unless QT_QPA_PLATFORM says so already, and returns that display's name in letters, digits and
/// underscores: two names of the same display are the same.
///
/// An X server that answers comes first, XWayland included, because a Wayland compositor lets no program place a popover or an overlay.
/// Then comes Wayland. Qt is also told how large the desktop draws its windows, where it would not see that by itself.
/// Threads: main. Order: before the application object.
/// Errors: nothing where no display answers.
[[nodiscard]] std::optional<std::string> chooseDisplay();

} // namespace tocca::platform::linux
