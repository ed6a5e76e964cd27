#include "Platform/Linux/System/Files/FileCopy.h"

#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/SystemCalls.h"

#include <cerrno>
#include <cstddef>
#include <variant>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kChunk = std::size_t{128} * 1024;
constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO; // without set-user-ID and the like
constexpr mode_t kOwnerMay = S_IRUSR | S_IWUSR;

Outcome synced(const FileDescriptor& file, const std::filesystem::path& path)
{
    return retried([&] { return ::fsync(file.get()); }) == 0 ? Outcome(std::monostate{})
                                                             : fileError(path, errno);
}

/// Copies until the end of `from`; an error names the file in which it arose.
Outcome copyBytes(const FileDescriptor& from, const std::filesystem::path& fromPath, const FileDescriptor& to,
                  const std::filesystem::path& toPath)
{
    std::vector<char> chunk(kChunk);
    for (;;) {
        const ssize_t count = retried([&] { return ::read(from.get(), chunk.data(), chunk.size()); });
        if (count < 0) {
            return fileError(fromPath, errno);
        }
        if (count == 0) {
            break;
        }
        if (!writeAll(to.get(), {chunk.data(), static_cast<std::size_t>(count)})) {
            return fileError(toPath, errno);
        }
    }
    return synced(to, toPath);
}

} // namespace

Outcome copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to)
{
    constexpr int kNeverWait = O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW;
    const FileDescriptor source(retried([&] { return ::open(from.c_str(), O_RDONLY | kNeverWait); }));
    if (!source.isOpen()) {
        return fileError(from, errno);
    }

    struct stat status {};

    if (::fstat(source.get(), &status) != 0) {
        return fileError(from, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return fileError(from, "not a regular file");
    }
    const mode_t mode = (status.st_mode & kPermissions) | kOwnerMay;
    const FileDescriptor target(
        retried([&] { return ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | kNeverWait, mode); }));
    if (!target.isOpen()) {
        return fileError(to, errno);
    }
    auto copied = copyBytes(source, from, target, to);
    if (!copied) {
        ::unlink(to.c_str());
    }
    return copied;
}

Outcome writeNewFile(const std::filesystem::path& to, std::string_view bytes)
{
    constexpr mode_t kReadable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    const FileDescriptor target(retried(
        [&] { return ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kReadable); }));
    if (!target.isOpen()) {
        return fileError(to, errno);
    }
    auto written = writeAll(target.get(), bytes) ? synced(target, to) : fileError(to, errno);
    if (!written) {
        ::unlink(to.c_str());
    }
    return written;
}

} // namespace tocca::platform::linux
