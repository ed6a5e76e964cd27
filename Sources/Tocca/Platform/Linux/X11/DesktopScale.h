#pragma once

#include <string_view>

namespace tocca::platform::linux {

/// By how much a desktop enlarges windows beside the resolution that it names for text, which Qt follows by itself: XFCE's "window
/// scaling". `settings` are the bytes of _XSETTINGS_SETTINGS, as in the freedesktop.org XSETTINGS protocol 0.5. At least 1.
/// Errors: 1 for bytes that are no settings.
[[nodiscard]] int scaleIn(std::string_view settings);

/// The same for the settings of the X server that DISPLAY names, which it waits for; 1 where nobody keeps any. Threads: any.
[[nodiscard]] int desktopScale();

} // namespace tocca::platform::linux
