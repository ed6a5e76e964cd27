#pragma once

#include "Support/Result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace tocca::platform {

enum class FileKind { Missing, File, Directory, Link, Special };

/// Tells whether two paths lead to the same thing, whatever they are called.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// What is at a path; a `Missing` thing has no identity.
struct FileStatus {
    FileKind kind = FileKind::Missing;
    FileIdentity identity;
    std::uint64_t byteCount = 0; ///< of a regular file, holes included
};

/// Changing of files, one step at a time, never waiting for anything but the disk.
///
/// The last component of a path is never followed when it is a link, but by `resolve`.
/// Threads: any.
/// Errors: the last component of the path and the system's reason; nothing has changed then, except by `makeDirectories` and
/// `removeTree`, which may stop halfway.
class FileStore {
public:
    virtual ~FileStore() = default;

    /// What is at `path`; `Missing` is no error.
    [[nodiscard]] virtual Result<FileStatus> status(const std::filesystem::path& path) const = 0;

    /// The absolute path of what `path` leads to, without links, "." and "..".
    [[nodiscard]] virtual Result<std::filesystem::path> resolve(const std::filesystem::path& path) const = 0;

    /// Makes a directory and its parents with the usual permissions; one that exists is no error.
    virtual Outcome makeDirectories(const std::filesystem::path& path) = 0;

    /// Copies one thing to `to`, where nothing must be: a regular file with its bytes, which have reached the disk then, a link
    /// as a link, a directory without its entries. The owner can always change the copy. Special things are an error.
    virtual Outcome copyEntry(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Makes a regular file with these bytes where nothing must be; they have reached the disk then.
    virtual Outcome writeFile(const std::filesystem::path& to, std::span<const std::byte> bytes) = 0;

    /// Renames a thing within its file system in one step. Something at `to` is an error.
    virtual Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Lets two things of one file system change places in one step; false where the file system has no such step.
    virtual Result<bool> exchange(const std::filesystem::path& first,
                                  const std::filesystem::path& second) = 0;

    /// Removes a thing and everything in it; a missing one is no error.
    virtual Outcome removeTree(const std::filesystem::path& path) = 0;

    /// Moves a thing to the user's trash, as if it had been at `original` until now, for the user to take it back from there.
    virtual Outcome moveToTrash(const std::filesystem::path& path, const std::filesystem::path& original) = 0;

    /// Returns when the names in `directory` have reached the disk.
    virtual Outcome syncDirectory(const std::filesystem::path& directory) = 0;
};

} // namespace tocca::platform
