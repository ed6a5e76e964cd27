#pragma once

namespace tocca::platform::linux {

/// Lets the toolkit draw with the processor where no graphics hardware can be used, and with OpenGL elsewhere.
///
/// Without hardware, OpenGL is emulated: that takes longer to start, more memory, and a thread for every core.
/// Threads: main. Order: after the application object, before the first window.
void chooseRenderer();

} // namespace tocca::platform::linux
