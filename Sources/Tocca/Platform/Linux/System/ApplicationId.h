#pragma once

namespace tocca::platform::linux {

/// The program's name to desktops: of its desktop entry, its icon and its service on the session bus.
inline constexpr const char kApplicationId[] =
    "org.tocca.Tocca"; // NOLINT(modernize-avoid-c-arrays): it has a length

} // namespace tocca::platform::linux
