#include "Platform/Linux/System/Files/LinuxFileStore.h"

#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/Files/FileCopy.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <system_error>
#include <variant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace fs = std::filesystem;

namespace {

/// Whether an error says that the file system lacks an operation.
bool isUnsupported(int number)
{
    return number == EINVAL || number == ENOSYS || number == EOPNOTSUPP;
}

Outcome outcome(const fs::path& path, const std::error_code& error)
{
    return error ? Outcome(fileError(path, error.message())) : Outcome(std::monostate{});
}

FileKind kindOf(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileKind::File;
    case S_IFDIR:
        return FileKind::Directory;
    case S_IFLNK:
        return FileKind::Link;
    default:
        return FileKind::Special;
    }
}

Outcome copyDirectory(const fs::path& to, mode_t mode)
{
    constexpr mode_t kEverybodyMay = S_IRWXU | S_IRWXG | S_IRWXO;
    if (::mkdir(to.c_str(), (mode & kEverybodyMay) | S_IRWXU) != 0) {
        return fileError(to, errno);
    }
    return std::monostate{};
}

/// Gives the owner every right to the directories below `path`, so that they can be emptied.
void unprotect(const fs::path& path)
{
    std::error_code error;
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add | fs::perm_options::nofollow, error);
    fs::recursive_directory_iterator entry(path, error);
    while (!error && entry != fs::recursive_directory_iterator()) {
        if (std::error_code ignored; entry->symlink_status(ignored).type() == fs::file_type::directory) {
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
        entry.increment(error);
    }
}

} // namespace

LinuxFileStore::LinuxFileStore()
{
    if (const auto data = LinuxDirectories().applicationSupport()) {
        trash_.emplace(*data / "Trash");
    }
}

Result<FileStatus> LinuxFileStore::status(const fs::path& path) const
{
    struct stat status {};

    if (::lstat(path.c_str(), &status) == 0) {
        return FileStatus{.kind = kindOf(status.st_mode),
                          .identity = {.device = status.st_dev, .number = status.st_ino},
                          .byteCount =
                              S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0};
    }
    if (errno == ENOENT || errno == ENOTDIR) {
        return FileStatus{};
    }
    return fileError(path, errno);
}

Result<fs::path> LinuxFileStore::resolve(const fs::path& path) const
{
    std::error_code error;
    fs::path resolved = fs::canonical(path, error);
    if (error) {
        return fileError(path, error.message());
    }
    return resolved;
}

Outcome LinuxFileStore::makeDirectories(const fs::path& path)
{
    std::error_code error;
    fs::create_directories(path, error);
    return outcome(path, error);
}

Outcome LinuxFileStore::copyEntry(const fs::path& from, const fs::path& to)
{
    struct stat status {};

    if (::lstat(from.c_str(), &status) != 0) {
        return fileError(from, errno);
    }
    switch (kindOf(status.st_mode)) {
    case FileKind::Directory:
        return copyDirectory(to, status.st_mode);
    case FileKind::Link: {
        std::error_code error;
        fs::copy_symlink(from, to, error);
        return outcome(to, error);
    }
    default:
        return copyRegularFile(from, to);
    }
}

Outcome LinuxFileStore::writeFile(const fs::path& to, std::span<const std::byte> bytes)
{
    return writeNewFile(to, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

Outcome LinuxFileStore::move(const fs::path& from, const fs::path& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return std::monostate{};
    }
    if (!isUnsupported(errno)) {
        return fileError(errno == EEXIST ? to : from, errno);
    }
    // Without the flag another program could put something there in between; only this program uses these directories.
    const auto target = this->status(to);
    if (!target) {
        return target.error();
    }
    if (target.value().kind != FileKind::Missing) {
        return fileError(to, EEXIST);
    }
    std::error_code error;
    fs::rename(from, to, error);
    return outcome(from, error);
}

Result<bool> LinuxFileStore::exchange(const fs::path& first, const fs::path& second)
{
    if (::renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0) {
        return true;
    }
    if (isUnsupported(errno)) {
        return false;
    }
    return fileError(second, errno);
}

Outcome LinuxFileStore::removeTree(const fs::path& path)
{
    std::error_code error;
    fs::remove_all(path, error);
    if (error == std::errc::permission_denied) {
        unprotect(path);
        fs::remove_all(path, error);
    }
    return outcome(path, error);
}

Outcome LinuxFileStore::moveToTrash(const fs::path& path, const fs::path& original)
{
    return trash_ ? trash_->put(path, original) : fileError(path, "there is no trash");
}

Outcome LinuxFileStore::syncDirectory(const fs::path& directory)
{
    const FileDescriptor descriptor(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return fileError(directory, errno);
    }
    // Where directories cannot be synchronised, they need not be.
    if (::fsync(descriptor.get()) != 0 && !isUnsupported(errno)) {
        return fileError(directory, errno);
    }
    return std::monostate{};
}

} // namespace tocca::platform::linux
