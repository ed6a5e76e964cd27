#pragma once

#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::linux {

/// A program that is installed on the desktop.
struct InstalledApplication {
    std::string id; ///< its desktop entry's name without the extension
    std::filesystem::path path;
};

/// The desktop entries of the installed programs, found by what a window calls itself.
///
/// The entries are read once and again when one of their directories has changed: about 0.05 ms for each.
/// Threads: one at a time.
class DesktopEntries {
public:
    /// Those of the directories that the environment names.
    DesktopEntries();

    /// Those of `directories`, of which the first one wins.
    explicit DesktopEntries(std::vector<std::filesystem::path> directories);

    /// By id, whatever its letter case.
    [[nodiscard]] std::optional<InstalledApplication> byId(const std::string& id);

    /// By one of the two parts of WM_CLASS: as its entry names it, else as its id or the end of its id does.
    [[nodiscard]] std::optional<InstalledApplication> byWindowClass(const std::string& windowClass);

    /// What the program calls itself to the user.
    [[nodiscard]] std::optional<std::string> nameOf(const InstalledApplication& application) const;

private:
    using Index = std::map<std::string, InstalledApplication>; // by lower-cased text

    void refresh();
    void readDirectory(const std::filesystem::path& root);
    void add(const std::filesystem::path& path, const std::string& id);

    const std::vector<std::filesystem::path> directories_;
    const std::vector<std::string> locales_;
    std::vector<std::pair<std::filesystem::path, std::filesystem::file_time_type>> seen_;
    Index ids_;
    Index lastComponents_;
    Index windowClasses_;
};

} // namespace tocca::platform::linux
