#pragma once

namespace tocca::platform::linux {

/// Has screen readers find the program's windows whenever they are switched on.
///
/// Order: before the application object is made. Threads: main.
void noticeLateScreenReaders();

} // namespace tocca::platform::linux
