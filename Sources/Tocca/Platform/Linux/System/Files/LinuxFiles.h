#pragma once

#include "Platform/Files.h"

namespace tocca::platform::linux {

/// Reads the operating system's files, but none that could wait for another program.
class LinuxFiles : public Files {
public:
    [[nodiscard]] bool exists(const std::filesystem::path& path) const override;
    [[nodiscard]] Result<std::vector<std::string>>
    list(const std::filesystem::path& directory) const override;
    [[nodiscard]] Result<SharedBytes> read(const std::filesystem::path& path,
                                           std::size_t limit) const override;
};

} // namespace tocca::platform::linux
