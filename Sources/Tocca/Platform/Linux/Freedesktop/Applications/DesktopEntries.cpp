#include "Platform/Linux/Freedesktop/Applications/DesktopEntries.h"

#include "Platform/Linux/System/Files/LinuxDirectories.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace tocca::platform::linux {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kExtension = ".desktop";

fs::file_time_type changeOf(const fs::path& directory)
{
    std::error_code error;
    return fs::last_write_time(directory, error); // the smallest time for one that is missing
}

} // namespace

DesktopEntries::DesktopEntries()
    : DesktopEntries(applicationDirectories())
{}

DesktopEntries::DesktopEntries(std::vector<fs::path> directories)
    : directories_(std::move(directories))
    , locales_(userLocales())
{}

std::optional<InstalledApplication> DesktopEntries::byId(const std::string& id)
{
    refresh();
    const auto entry = ids_.find(lowerCased(id));
    return entry != ids_.end() ? std::optional(entry->second) : std::nullopt;
}

std::optional<InstalledApplication> DesktopEntries::byWindowClass(const std::string& windowClass)
{
    refresh();
    const std::string wanted = lowerCased(windowClass);
    for (const Index* const index : {&windowClasses_, &ids_, &lastComponents_}) {
        if (const auto entry = index->find(wanted); entry != index->end()) {
            return entry->second;
        }
    }
    return std::nullopt;
}

std::optional<std::string> DesktopEntries::nameOf(const InstalledApplication& application) const
{
    const auto entry = readDesktopEntry(application.path);
    return entry ? entry->localizedText("Name", locales_) : std::nullopt;
}

void DesktopEntries::refresh()
{
    const bool isFresh = !seen_.empty() && std::all_of(seen_.begin(), seen_.end(), [](const auto& seen) {
        return changeOf(seen.first) == seen.second;
    });
    if (isFresh) {
        return;
    }
    seen_.clear();
    ids_.clear();
    lastComponents_.clear();
    windowClasses_.clear();
    for (const fs::path& directory : directories_) {
        readDirectory(directory);
    }
}

void DesktopEntries::readDirectory(const fs::path& root)
{
    seen_.emplace_back(root, changeOf(root));
    std::error_code error;
    std::vector<fs::path> found;
    for (auto entry = fs::recursive_directory_iterator(root, error);
         !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_directory(ignored)) {
            seen_.emplace_back(entry->path(), changeOf(entry->path()));
        } else if (entry->path().extension() == kExtension) {
            found.push_back(entry->path());
        }
    }
    std::sort(found.begin(), found.end()); // so that it is always the same one of two with one class
    for (const fs::path& path : found) {
        std::string id = path.lexically_relative(root).native();
        id.resize(id.size() - kExtension.size());
        std::replace(id.begin(), id.end(), '/', '-');
        add(path, id);
    }
}

void DesktopEntries::add(const fs::path& path, const std::string& id)
{
    const InstalledApplication application{.id = id, .path = path};
    const std::string lower = lowerCased(id);
    if (!ids_.emplace(lower, application).second) {
        return; // an earlier directory has one of this id
    }
    lastComponents_.emplace(lower.substr(lower.rfind('.') + 1), application);
    if (const auto entry = readDesktopEntry(path)) {
        if (const auto windowClass = entry->text("StartupWMClass"); windowClass && !windowClass->empty()) {
            windowClasses_.emplace(lowerCased(*windowClass), application);
        }
    }
}

} // namespace tocca::platform::linux
