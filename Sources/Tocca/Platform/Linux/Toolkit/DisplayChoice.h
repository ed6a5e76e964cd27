#pragma once

namespace tocca::platform::linux {

/// Has the toolkit's windows on the X server where there is one, XWayland included: a Wayland compositor lets nobody place a popover
/// or an overlay.
/// Threads: main. Order: before the application object. A person's own choice of the toolkit's platform stands.
void preferXServer();

} // namespace tocca::platform::linux
