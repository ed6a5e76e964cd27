#pragma once

#include <QIcon>

namespace tocca::platform::linux {

/// The program's icon: the desktop's theme may have its own, else the one in the program. Threads: main.
[[nodiscard]] QIcon applicationIcon();

} // namespace tocca::platform::linux
