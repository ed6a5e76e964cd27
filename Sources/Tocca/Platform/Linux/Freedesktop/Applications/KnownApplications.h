#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tocca::platform::linux {

/// The platform's identifier of a program that goes by `name` here, if it is one that the platform knows.
///
/// `name` is a desktop entry's id, a Flatpak or Snap name, a window class or an executable; letter case does not matter.
/// Threads: any.
[[nodiscard]] std::optional<std::string> knownApplication(std::string_view name);

} // namespace tocca::platform::linux
