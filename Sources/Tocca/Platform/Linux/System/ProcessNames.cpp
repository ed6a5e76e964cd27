#include "Platform/Linux/System/ProcessNames.h"

#include "Platform/Linux/System/FileDescriptor.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr std::string_view kFlatpakUnit = "app-flatpak-";
constexpr std::string_view kSnapUnit = "snap.";

/// The first 4,096 bytes of one of the kernel's files about a process.
std::string readAbout(std::uint32_t process, const char* name)
{
    const std::string path = "/proc/" + std::to_string(process) + '/' + name;
    const FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    std::string text(4096, '\0');
    const ssize_t size = descriptor.isOpen() ? ::read(descriptor.get(), text.data(), text.size()) : 0;
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return text;
}

std::string lastComponent(std::string_view path)
{
    return std::string(path.substr(path.rfind('/') + 1));
}

/// Turns "\x2d" back into the "-" that may not stand in a unit's name.
std::string unescapeUnit(std::string_view text)
{
    constexpr std::size_t kLength = 4;
    constexpr int kHexadecimal = 16;
    std::string plain;
    for (std::size_t i = 0; i < text.size();) {
        unsigned char byte = 0;
        const auto code = text.substr(i, kLength);
        if (code.size() == kLength && code.starts_with("\\x") &&
            std::from_chars(code.data() + 2, code.data() + kLength, byte, kHexadecimal).ptr ==
                code.data() + kLength) {
            plain += static_cast<char>(byte);
            i += kLength;
        } else {
            plain += text[i++];
        }
    }
    return plain;
}

} // namespace

ProcessNames ProcessNames::of(std::uint32_t process)
{
    ProcessNames names;
    if (process == 0) {
        return names;
    }
    names.kernel = readAbout(process, "comm");
    if (names.kernel.ends_with('\n')) {
        names.kernel.pop_back();
    }
    const std::string arguments = readAbout(process, "cmdline");
    names.command = lastComponent(std::string_view(arguments).substr(0, arguments.find('\0')));
    std::error_code error;
    names.executable = lastComponent(
        std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error).native());
    return names;
}

std::string applicationOfControlGroup(const std::string& path)
{
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find_first_of("/\n", begin), path.size());
        const std::string_view unit = std::string_view(path).substr(begin, end - begin);
        begin = end + 1;
        if (unit.starts_with(kFlatpakUnit)) {
            // "app-flatpak-<application>-<number>.scope"
            const std::string_view rest = unit.substr(kFlatpakUnit.size());
            return unescapeUnit(rest.substr(0, rest.rfind('-')));
        }
        if (unit.starts_with(kSnapUnit)) {
            // "snap.<snap>.<application>-<number>.scope": the desktop calls it <snap>_<application>
            std::string rest(unit.substr(kSnapUnit.size()));
            const std::size_t dot = rest.find('.');
            std::string snap = rest.substr(0, dot);
            std::string application = dot == std::string::npos ? snap : rest.substr(dot + 1);
            application = application.substr(0, application.find_first_of(".-"));
            return snap.append("_").append(application);
        }
    }
    return {};
}

std::string sandboxedApplication(std::uint32_t process)
{
    return process == 0 ? std::string() : applicationOfControlGroup(readAbout(process, "cgroup"));
}

} // namespace tocca::platform::linux
