#include "Platform/Linux/System/Files/LinuxFiles.h"

#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kGrowth = 65536;

FileDescriptor openWithoutWaiting(const std::filesystem::path& path)
{
    // Non-blocking, because opening a FIFO would otherwise wait for somebody to write to it.
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    return FileDescriptor(retried([&] { return ::open(path.c_str(), kFlags); }));
}

/// Reads until the end, whatever size the file claimed to have: it may be growing. Errors: an error number, `EFBIG` for more than `limit`
/// bytes; 0 for none.
int readUpTo(int descriptor, std::size_t expected, std::size_t limit, std::vector<std::byte>& bytes)
{
    bytes.resize(expected + 1); // the extra byte finds the end without another round of growing
    std::size_t length = 0;
    for (;;) {
        if (length == bytes.size()) {
            bytes.resize(std::min(length + std::max(length, kGrowth), limit + 1));
        }
        const ssize_t count =
            retried([&] { return ::read(descriptor, bytes.data() + length, bytes.size() - length); });
        if (count < 0) {
            return errno;
        }
        length += static_cast<std::size_t>(count);
        if (length > limit) {
            return EFBIG;
        }
        if (count == 0) {
            bytes.resize(length);
            return 0;
        }
    }
}

} // namespace

bool LinuxFiles::exists(const std::filesystem::path& path) const
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

Result<std::vector<std::string>> LinuxFiles::list(const std::filesystem::path& directory) const
{
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(directory, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    if (error) {
        return fileError(directory, error.message());
    }
    return names;
}

Result<SharedBytes> LinuxFiles::read(const std::filesystem::path& path, std::size_t limit) const
{
    const FileDescriptor file = openWithoutWaiting(path);
    if (!file.isOpen()) {
        return fileError(path, errno);
    }

    struct stat status {};

    if (::fstat(file.get(), &status) != 0) {
        return fileError(path, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return fileError(path, "not a regular file");
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > limit) {
        return fileError(path, EFBIG);
    }
    auto bytes = std::make_shared<std::vector<std::byte>>();
    if (const int number = readUpTo(file.get(), size, limit, *bytes); number != 0) {
        return fileError(path, number);
    }
    return SharedBytes(std::move(bytes));
}

} // namespace tocca::platform::linux
