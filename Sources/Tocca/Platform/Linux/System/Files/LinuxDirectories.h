#pragma once

#include "Platform/Directories.h"

#include <vector>

namespace tocca::platform::linux {

/// The directories of a build tree or an installation, and those of the XDG base directory rules.
class LinuxDirectories : public Directories {
public:
    LinuxDirectories();

    /// As if the program were in `programDirectory`.
    explicit LinuxDirectories(std::filesystem::path programDirectory);

    /// `../Resources` (a build tree) or `../share/tocca` (an installation), seen from the program.
    [[nodiscard]] std::optional<std::filesystem::path> resources() const override;

    [[nodiscard]] std::filesystem::path currentWorkingDirectory() const override;

    /// `$XDG_DATA_HOME`, or `~/.local/share` when that is not an absolute path.
    [[nodiscard]] std::optional<std::filesystem::path> applicationSupport() const override;

private:
    std::filesystem::path programDirectory_;
};

/// The file that this process was started from; empty when the system does not tell. Threads: any.
[[nodiscard]] std::filesystem::path thisProgram();

/// Where the user's programs keep their state; nothing when the system names no home directory. Threads: any.
[[nodiscard]] std::optional<std::filesystem::path> stateDirectory();

/// Where the desktop looks for what starts with the session, the user's own directory first; none when the system names no home
/// directory. Threads: any.
[[nodiscard]] std::vector<std::filesystem::path> autostartDirectories();

/// Where the desktop looks for installed programs, the user's own directory first. Threads: any.
[[nodiscard]] std::vector<std::filesystem::path> applicationDirectories();

} // namespace tocca::platform::linux
