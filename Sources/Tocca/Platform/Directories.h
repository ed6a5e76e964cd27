#pragma once

#include <filesystem>
#include <optional>

namespace tocca::platform {

/// Where the program's files are. Threads: any.
class Directories {
public:
    virtual ~Directories() = default;

    /// The directory of the resources that came with the program, if it has one.
    [[nodiscard]] virtual std::optional<std::filesystem::path> resources() const = 0;

    [[nodiscard]] virtual std::filesystem::path currentWorkingDirectory() const = 0;

    /// The user's own data directory, if the system names one; it need not exist.
    [[nodiscard]] virtual std::optional<std::filesystem::path> applicationSupport() const = 0;
};

} // namespace tocca::platform
