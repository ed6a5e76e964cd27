#pragma once

namespace tocca::platform::linux {

/// Tells the toolkit where its windows go: on the X server where one answers, XWayland included, since a Wayland compositor lets nobody
/// place a popover or an overlay; else on Wayland; and without a display nowhere, so that the program runs all the same.
/// Threads: main. Order: before the application object. A person's own choice of the toolkit's platform stands.
void chooseDisplay();

} // namespace tocca::platform::linux
