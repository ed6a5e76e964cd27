#include "Platform/Linux/System/Files/FileReplacement.h"

#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <variant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

/// Writes all of `bytes` through to the disk; 0 or the number of the error.
int writeThrough(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    constexpr mode_t kReadable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    return ::fchmod(descriptor, kReadable) == 0 && ::fsync(descriptor) == 0 ? 0 : errno;
}

} // namespace

Outcome replaceFile(const std::filesystem::path& path, std::string_view bytes)
{
    std::string staged = (path.parent_path() / ("." + path.filename().native() + ".XXXXXX")).native();
    const FileDescriptor descriptor(::mkostemp(staged.data(), O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return fileError(path, errno);
    }
    int number = writeThrough(descriptor.get(), bytes);
    if (number == 0 && ::rename(staged.c_str(), path.c_str()) != 0) {
        number = errno;
    }
    if (number != 0) {
        ::unlink(staged.c_str());
        return fileError(path, number);
    }
    return LinuxFileStore().syncDirectory(path.parent_path());
}

} // namespace tocca::platform::linux
