#pragma once

#include "Platform/Directories.h"
#include "Platform/Files.h"
#include "Platform/Memory/MemoryDisk.h"

#include <string>
#include <string_view>

namespace tocca::platform::memory {

[[nodiscard]] SharedBytes bytesOf(std::string_view text);
[[nodiscard]] std::string textOf(const std::vector<std::byte>& bytes);

/// Files of a disk in memory; a directory lists its entries in the order in which they were made.
class MemoryFiles : public Files {
public:
    explicit MemoryFiles(MemoryDisk& disk)
        : disk_(disk)
    {}

    [[nodiscard]] bool exists(const std::filesystem::path& path) const override;

    [[nodiscard]] Result<std::vector<std::string>>
    list(const std::filesystem::path& directory) const override;
    [[nodiscard]] Result<SharedBytes> read(const std::filesystem::path& path,
                                           std::size_t limit) const override;

    /// Makes a directory and its parents.
    void makeDirectory(const std::filesystem::path& path);

    /// Makes or replaces a regular file, and its directory.
    void write(const std::filesystem::path& path, std::string_view text);

    /// Makes something that is neither a file nor a directory.
    void makeSpecial(const std::filesystem::path& path);

    /// Makes a link to `target`, which need not exist.
    void makeLink(const std::filesystem::path& path, const std::filesystem::path& target);

    /// Makes reading or listing `path` fail.
    void makeUnreadable(const std::filesystem::path& path);

    /// How often `list` and `read` have been called.
    [[nodiscard]] int accessCount() const noexcept { return accessCount_; }

private:
    MemoryDisk::Node& add(const std::filesystem::path& path, FileKind kind);

    MemoryDisk& disk_;
    mutable int accessCount_ = 0;
};

/// Directories that a test can move or take away.
class MemoryDirectories : public Directories {
public:
    [[nodiscard]] std::optional<std::filesystem::path> resources() const override { return resourcesPath; }

    [[nodiscard]] std::filesystem::path currentWorkingDirectory() const override { return workingPath; }

    [[nodiscard]] std::optional<std::filesystem::path> applicationSupport() const override
    {
        return supportPath;
    }

    std::optional<std::filesystem::path> resourcesPath = "/app/resources";
    std::filesystem::path workingPath = "/home/user/project";
    std::optional<std::filesystem::path> supportPath = "/home/user/.local/share";
};

} // namespace tocca::platform::memory
