#pragma once

#include "Platform/Desktop/Workspace.h"

#include <string_view>

namespace tocca::platform::linux {

/// What the program is for that goes by `name` here.
///
/// `name` is a desktop entry's id, a Flatpak or Snap name, a window class or an executable; letter case does not matter.
/// Threads: any.
[[nodiscard]] ApplicationKind kindOfApplication(std::string_view name);

} // namespace tocca::platform::linux
