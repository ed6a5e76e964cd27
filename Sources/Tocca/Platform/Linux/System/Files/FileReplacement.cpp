#include "Platform/Linux/System/Files/FileReplacement.h"

#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/SystemCalls.h"

#include <cerrno>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

Outcome replaceFile(const std::filesystem::path& path, std::string_view bytes)
{
    std::string staged = (path.parent_path() / ("." + path.filename().native() + ".XXXXXX")).native();
    const FileDescriptor descriptor(::mkostemp(staged.data(), O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return fileError(path, errno);
    }
    constexpr mode_t kReadable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    if (!writeAll(descriptor.get(), bytes) || ::fchmod(descriptor.get(), kReadable) != 0 ||
        ::fsync(descriptor.get()) != 0 || ::rename(staged.c_str(), path.c_str()) != 0) {
        const int number = errno;
        ::unlink(staged.c_str());
        return fileError(path, number);
    }
    return LinuxFileStore().syncDirectory(path.parent_path());
}

} // namespace tocca::platform::linux
