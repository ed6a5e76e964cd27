#pragma once

#include "Platform/FileStore.h"
#include "Platform/Memory/MemoryDisk.h"

#include <cstddef>
#include <limits>

namespace tocca::platform::memory {

/// A disk in memory that a test can fill, protect, or make simpler than most.
class MemoryFileStore : public FileStore {
public:
    explicit MemoryFileStore(MemoryDisk& disk)
        : disk_(disk)
    {}

    [[nodiscard]] Result<FileStatus> status(const std::filesystem::path& path) const override;
    [[nodiscard]] Result<std::filesystem::path> resolve(const std::filesystem::path& path) const override;
    Outcome makeDirectories(const std::filesystem::path& path) override;
    Outcome copyEntry(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Outcome writeFile(const std::filesystem::path& to, std::span<const std::byte> bytes) override;
    Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) override;
    Result<bool> exchange(const std::filesystem::path& first, const std::filesystem::path& second) override;
    Outcome removeTree(const std::filesystem::path& path) override;
    Outcome moveToTrash(const std::filesystem::path& path, const std::filesystem::path& original) override;
    Outcome syncDirectory(const std::filesystem::path& directory) override;

    bool isReadOnly = false;
    bool canExchange = true;
    bool hasTrash = true; ///< things in it are at `kTrash`, numbered and with their names
    static constexpr const char* kTrash = "/trash";
    std::size_t freeBytes = std::numeric_limits<std::size_t>::max(); ///< counts down as files are copied

private:
    MemoryDisk& disk_;
};

} // namespace tocca::platform::memory
