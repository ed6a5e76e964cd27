#include "Platform/Linux/System/Files/LinuxDirectories.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

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

/// The directory that `variable` names, or the one below the user's home.
std::optional<std::filesystem::path> userDirectory(const char* variable, const char* belowHome)
{
    if (auto named = absolutePathIn(variable)) {
        return named;
    }
    auto home = absolutePathIn("HOME");
    if (!home) {
        home = homeInUserDatabase();
    }
    return home ? std::optional(*home / belowHome) : std::nullopt;
}

/// `own` and the directories that `variable` lists, each with `below`.
std::vector<std::filesystem::path> searched(const std::optional<std::filesystem::path>& own,
                                            const char* variable, const char* fallback, const char* below)
{
    std::vector<std::filesystem::path> directories;
    if (own) {
        directories.push_back(*own / below);
    }
    const char* const value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe)
    std::string_view list = value != nullptr && *value != '\0' ? value : fallback;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(':'), list.size());
        if (list.starts_with('/')) {
            directories.push_back(std::filesystem::path(list.substr(0, end)) / below);
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return directories;
}

} // namespace

LinuxDirectories::LinuxDirectories()
    : LinuxDirectories(thisProgram().parent_path())
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
    return userDirectory("XDG_DATA_HOME", ".local/share");
}

std::filesystem::path thisProgram()
{
    constexpr std::string_view kReplaced = " (deleted)";
    std::error_code error;
    std::string path = std::filesystem::read_symlink("/proc/self/exe", error).native();
    if (path.ends_with(kReplaced)) {
        path.resize(path.size() - kReplaced.size()); // an update has replaced the running program's file
    }
    return path;
}

std::optional<std::filesystem::path> stateDirectory()
{
    return userDirectory("XDG_STATE_HOME", ".local/state");
}

std::vector<std::filesystem::path> autostartDirectories()
{
    const auto own = userDirectory("XDG_CONFIG_HOME", ".config");
    return own ? searched(own, "XDG_CONFIG_DIRS", "/etc/xdg", "autostart")
               : std::vector<std::filesystem::path>();
}

std::vector<std::filesystem::path> applicationDirectories()
{
    return searched(userDirectory("XDG_DATA_HOME", ".local/share"), "XDG_DATA_DIRS",
                    "/usr/local/share:/usr/share", "applications");
}

} // namespace tocca::platform::linux
