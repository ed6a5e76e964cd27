#include "Platform/Linux/Freedesktop/Applications/LinuxLoginItem.h"

#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"
#include "Platform/Linux/System/ApplicationId.h"
#include "Platform/Linux/System/Files/FileError.h"
#include "Platform/Linux/System/Files/FileReplacement.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

#include <unistd.h>

namespace tocca::platform::linux {

namespace fs = std::filesystem;

namespace {

constexpr const char* kHiddenEntry = "[Desktop Entry]\nType=Application\nName=Tocca\nHidden=true\n";

fs::path entryPath(const fs::path& directory)
{
    return directory / (std::string(kApplicationId) + ".desktop");
}

bool canRun(const std::string& program)
{
    // A bare name, which only a foreign entry can have, is looked for by the desktop.
    return program.find('/') == std::string::npos || ::access(program.c_str(), X_OK) == 0;
}

} // namespace

LinuxLoginItem::LinuxLoginItem()
    : LinuxLoginItem({.program = thisProgram(), .directories = autostartDirectories()})
{}

LinuxLoginItem::LinuxLoginItem(Places places)
    : places_(std::move(places))
{}

LoginItemStatus LinuxLoginItem::status() const
{
    for (const fs::path& directory : places_.directories) {
        const auto entry = readDesktopEntry(entryPath(directory));
        if (!entry) {
            continue;
        }
        if (entry->text("Hidden") == "true") {
            return LoginItemStatus::NotRegistered;
        }
        if (entry->text("X-GNOME-Autostart-enabled") == "false" ||
            entry->text("X-MATE-Autostart-enabled") == "false") {
            return LoginItemStatus::RequiresApproval;
        }
        const auto program = entry->text("TryExec");
        return !program || canRun(*program) ? LoginItemStatus::Enabled : LoginItemStatus::NotFound;
    }
    return LoginItemStatus::NotRegistered;
}

Outcome LinuxLoginItem::registerItem()
{
    return write(enabledEntry());
}

Outcome LinuxLoginItem::unregisterItem()
{
    if (hasSystemEntry()) {
        return write(kHiddenEntry);
    }
    if (places_.directories.empty()) {
        return std::monostate{};
    }
    const fs::path path = entryPath(places_.directories.front());
    if (::unlink(path.c_str()) != 0 && errno != ENOENT && errno != ENOTDIR) {
        return fileError(path, errno);
    }
    return std::monostate{};
}

bool LinuxLoginItem::hasSystemEntry() const
{
    return places_.directories.size() > 1 &&
           std::any_of(places_.directories.begin() + 1, places_.directories.end(),
                       [](const fs::path& directory) { return readDesktopEntry(entryPath(directory)); });
}

Outcome LinuxLoginItem::write(const std::string& text) const
{
    if (places_.directories.empty()) {
        return Error{"the system names no directory for the user's settings"};
    }
    const fs::path& directory = places_.directories.front();
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) {
        return fileError(directory, error.message());
    }
    return replaceFile(entryPath(directory), text);
}

std::string LinuxLoginItem::enabledEntry() const
{
    const std::string& program = places_.program.native();
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Version=1.5\n"
           "Name=Tocca\n"
           "Comment=Sounds for keyboard and mouse\n"
           "Icon=" +
           std::string(kApplicationId) + "\nExec=" + escapedArgument(program) +
           "\nTryExec=" + escapedText(program) +
           "\nTerminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

} // namespace tocca::platform::linux
