#pragma once

#include "Platform/FileStore.h"

namespace tocca::platform::linux {

/// Changes to the operating system's files. A crash at any moment leaves each step either done or not begun.
class LinuxFileStore : public FileStore {
public:
    [[nodiscard]] Result<FileStatus> status(const std::filesystem::path& path) const override;
    [[nodiscard]] Result<std::filesystem::path> resolve(const std::filesystem::path& path) const override;
    Outcome makeDirectories(const std::filesystem::path& path) override;
    Outcome copyEntry(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Result<bool> exchange(const std::filesystem::path& first, const std::filesystem::path& second) override;
    Outcome removeTree(const std::filesystem::path& path) override;
    Outcome syncDirectory(const std::filesystem::path& directory) override;
};

} // namespace tocca::platform::linux
