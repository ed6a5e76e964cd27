#pragma once

#include "Platform/FileStore.h"
#include "Platform/Linux/System/Files/HomeTrash.h"

#include <optional>
#include <utility>

namespace tocca::platform::linux {

/// Changes to the operating system's files. A crash at any moment leaves each step either done or not begun.
class LinuxFileStore : public FileStore {
public:
    /// Uses the trash of the user's home.
    LinuxFileStore();

    /// Uses a trash of its own.
    explicit LinuxFileStore(HomeTrash trash)
        : trash_(std::move(trash))
    {}

    [[nodiscard]] Result<FileStatus> status(const std::filesystem::path& path) const override;
    [[nodiscard]] Result<std::filesystem::path> resolve(const std::filesystem::path& path) const override;
    Outcome makeDirectories(const std::filesystem::path& path) override;
    Outcome copyEntry(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Outcome writeFile(const std::filesystem::path& to, std::span<const std::byte> bytes) override;
    Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Result<bool> exchange(const std::filesystem::path& first, const std::filesystem::path& second) override;
    Outcome removeTree(const std::filesystem::path& path) override;
    /// A trash on another file system than that of the home is not looked for.
    Outcome moveToTrash(const std::filesystem::path& path, const std::filesystem::path& original) override;
    Outcome syncDirectory(const std::filesystem::path& directory) override;

private:
    std::optional<HomeTrash> trash_; // none when the system names no home
};

} // namespace tocca::platform::linux
