#pragma once

#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::linux {

/// A program with a desktop entry.
struct InstalledApplication {
    std::string id; ///< its desktop entry's name without the extension
    std::filesystem::path path;
};

/// The desktop entries of the installed programs, found by what a window calls itself.
///
/// The entries are read when first needed, and again when one of their directories has changed; each takes about 0.05 ms.
/// Threads: one at a time.
class DesktopEntries {
public:
    /// The entries in the directories that the environment names.
    DesktopEntries();

    /// The entries in `directories`; of two with one id, that of the earlier directory counts.
    explicit DesktopEntries(std::vector<std::filesystem::path> directories);

    /// By id, whatever its letter case.
    [[nodiscard]] std::optional<InstalledApplication> byId(const std::string& id);

    /// By either part of WM_CLASS: first by the class that an entry states, then by id, then by the last component of the id.
    [[nodiscard]] std::optional<InstalledApplication> byWindowClass(const std::string& windowClass);

    /// The program's name in the user's language.
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
