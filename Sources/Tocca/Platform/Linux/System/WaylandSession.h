#pragma once

namespace tocca::platform::linux {

/// Whether WAYLAND_DISPLAY names a compositor's socket that exists. Threads: any while nobody changes the environment.
[[nodiscard]] bool isWaylandSession();

} // namespace tocca::platform::linux
