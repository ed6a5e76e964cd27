#pragma once

namespace tocca::platform::linux {

/// Lets Qt draw with OpenGL where there is graphics hardware, and with the processor elsewhere.
///
/// OpenGL without hardware would be emulated, which takes longer to start, more memory, and a thread for every core.
/// Threads: main. Order: after the application object, before the first window.
void chooseRenderer();

} // namespace tocca::platform::linux
