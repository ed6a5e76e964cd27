#pragma once

#include <cstdint>
#include <string>

namespace tocca::platform::linux {

/// The names of a running process. Threads: any. Errors: a name that cannot be read is empty.
struct ProcessNames {
    std::string kernel;     ///< in the kernel, cut to 15 bytes
    std::string command;    ///< last component of the first argument
    std::string executable; ///< last component of the program's path; empty for other users' processes

    [[nodiscard]] static ProcessNames of(std::uint32_t process);
};

/// The application id that the sandbox around a process (Flatpak, Snap) gives it; empty without a sandbox.
[[nodiscard]] std::string sandboxedApplication(std::uint32_t process);

/// The same from the path of the control group that a process is in.
[[nodiscard]] std::string applicationOfControlGroup(const std::string& path);

} // namespace tocca::platform::linux
