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
        applicationIds; ///< by the sandbox around it or as the window says, most trustworthy first
    std::vector<std::string> windowClasses; ///< WM_CLASS: instance, class
    std::string executable;                 ///< name of its program
};

/// Which application that is: the identifier of one that the platform knows, else the id of its desktop entry or what the
/// window calls itself; with its desktop entry's name, else its class. Nothing when the window says nothing.
[[nodiscard]] std::optional<RunningApplication> applicationOf(const WindowOwner& owner,
                                                              DesktopEntries& entries);

} // namespace tocca::platform::linux
