#include "Platform/Linux/System/LinuxDirectories.h"

#include <array>
#include <cstdlib>
#include <system_error>
#include <utility>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

std::filesystem::path directoryOfThisProgram()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::optional<std::filesystem::path> absolutePathIn(const char* variable)
{
    const char* const value =
        std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nobody here calls setenv
    if (value == nullptr || *value != '/') {
        return std::nullopt;
    }
    return std::filesystem::path(value);
}

std::optional<std::filesystem::path> homeInUserDatabase()
{
    constexpr std::size_t kLongestEntry = 16384;
    std::vector<char> text(kLongestEntry);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, text.data(), text.size(), &found) != 0 || found == nullptr ||
        *found->pw_dir != '/') {
        return std::nullopt;
    }
    return std::filesystem::path(found->pw_dir);
}

} // namespace

LinuxDirectories::LinuxDirectories()
    : LinuxDirectories(directoryOfThisProgram())
{}

LinuxDirectories::LinuxDirectories(std::filesystem::path programDirectory)
    : programDirectory_(std::move(programDirectory))
{}

std::optional<std::filesystem::path> LinuxDirectories::resources() const
{
    const std::filesystem::path prefix = programDirectory_.parent_path();
    for (const auto& candidate : std::array{prefix / "Resources", prefix / "share" / "tocca"}) {
        std::error_code error;
        if (std::filesystem::is_directory(candidate, error)) {
            return candidate;
        }
    }
    return std::nullopt;
}

std::filesystem::path LinuxDirectories::currentWorkingDirectory() const
{
    std::error_code error;
    return std::filesystem::current_path(error);
}

std::optional<std::filesystem::path> LinuxDirectories::applicationSupport() const
{
    if (auto data = absolutePathIn("XDG_DATA_HOME")) {
        return data;
    }
    auto home = absolutePathIn("HOME");
    if (!home) {
        home = homeInUserDatabase();
    }
    if (!home) {
        return std::nullopt;
    }
    return *home / ".local" / "share";
}

} // namespace tocca::platform::linux
