#pragma once

namespace tocca::platform::linux {

/// Tells the toolkit where to put its windows, unless the person has told it already: on the X server where one answers, since on
/// Wayland no program places its own overlays; else on Wayland; and without a display nowhere, so that the program runs all the same.
///
/// Threads: main. Order: before the application object.
void chooseDisplay();

} // namespace tocca::platform::linux
