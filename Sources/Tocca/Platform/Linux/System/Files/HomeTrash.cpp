#include "Platform/Linux/System/Files/HomeTrash.h"

#include "Platform/Linux/System/Files/FileCopy.h"
#include "Platform/Linux/System/Files/FileError.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace fs = std::filesystem;

namespace {

std::string percentEncoded(std::string_view path)
{
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const char c : path) {
        if (kPlain.find(c) != std::string_view::npos) {
            text += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            text += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
        }
    }
    return text;
}

std::string deletionDate()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local)};
}

Outcome makePrivate(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return fileError(folder, errno);
    }
    return std::monostate{};
}

} // namespace

Outcome HomeTrash::put(const fs::path& path, const fs::path& original) const
{
    for (const fs::path& folder : {folder_, folder_ / "files", folder_ / "info"}) {
        if (auto made = makePrivate(folder); !made) {
            return made;
        }
    }
    const std::string note =
        "[Trash Info]\nPath=" + percentEncoded(original.native()) + "\nDeletionDate=" + deletionDate() + "\n";
    constexpr int kMostOfOneName = 10000;
    for (int number = 1; number <= kMostOfOneName; ++number) {
        // The note is made first and takes the name, so that two programs never choose the same.
        const std::string name =
            original.filename().string() + (number == 1 ? std::string() : "." + std::to_string(number));
        const fs::path info = folder_ / "info" / (name + ".trashinfo");
        if (auto written = writeNewFile(info, note); !written) {
            std::error_code error;
            if (fs::exists(fs::symlink_status(info, error))) {
                continue;
            }
            return written;
        }
        if (::renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, (folder_ / "files" / name).c_str(),
                        RENAME_NOREPLACE) == 0) {
            return std::monostate{};
        }
        const int reason = errno;
        ::unlink(info.c_str());
        if (reason != EEXIST) {
            return fileError(path, reason);
        }
    }
    return fileError(path, "the trash holds too many of this name");
}

} // namespace tocca::platform::linux
