#pragma once

#include "Platform/Desktop/Workspace.h"
#include "Platform/Linux/Freedesktop/Applications/DesktopEntries.h"

#include <optional>
#include <string>
#include <vector>

namespace tocca::platform::linux {

/// What is known about the program that a window belongs to; any part may be empty.
struct WindowOwner {
    std::vector<std::string>
        applicationIds; ///< as the sandbox or the window states them, most trustworthy first
    std::vector<std::string> windowClasses; ///< WM_CLASS: instance, class
    std::string executable;                 ///< name of its program
};

/// The application that a window belongs to; nothing when the window says nothing about it.
///
/// Its identifier is the id of its desktop entry, else what the window calls itself. Its name is the desktop entry's, else the window
/// class.
[[nodiscard]] RunningApplication applicationOf(const WindowOwner& owner, DesktopEntries& entries);

} // namespace tocca::platform::linux
