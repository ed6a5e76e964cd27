#pragma once

#include <QIcon>

namespace tocca::platform::linux {

/// The program's icon: that of the desktop's icon theme if it has one, else the one built in. Threads: main.
[[nodiscard]] QIcon applicationIcon();

} // namespace tocca::platform::linux
