#pragma once

#include "Support/Result.h"

#include <cstdint>
#include <filesystem>

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

    /// Renames a thing within its file system in one step. Something at `to` is an error.
    virtual Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Lets two things of one file system change places in one step; false where the file system has no such step.
    virtual Result<bool> exchange(const std::filesystem::path& first,
                                  const std::filesystem::path& second) = 0;

    /// Removes a thing and everything in it; a missing one is no error.
    virtual Outcome removeTree(const std::filesystem::path& path) = 0;

    /// Returns when the names in `directory` have reached the disk.
    virtual Outcome syncDirectory(const std::filesystem::path& directory) = 0;
};

} // namespace tocca::platform
