#pragma once

#include <cstdint>
#include <string>

namespace tocca::platform::linux {

/// What a running process is called. Threads: any. Errors: what cannot be read is empty.
struct ProcessNames {
    std::string kernel;     ///< as the kernel keeps it: 15 bytes
    std::string command;    ///< last component of the first argument
    std::string executable; ///< last component of the program's path; hidden for the programs of others

    [[nodiscard]] static ProcessNames of(std::uint32_t process);
};

/// The application that a process is packed as, by the names of the sandbox around it (Flatpak, Snap); empty for none.
[[nodiscard]] std::string sandboxedApplication(std::uint32_t process);

/// The application that a control group of the name `path` stands for; empty for none.
[[nodiscard]] std::string applicationOfControlGroup(const std::string& path);

} // namespace tocca::platform::linux
