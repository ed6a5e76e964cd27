#pragma once

#include "Platform/Desktop/LoginItem.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tocca::platform::linux {

/// Starting with the session, by an XDG autostart entry.
///
/// Nothing is remembered: the file is read each time. An entry of the user's own takes the place of the system's.
class LinuxLoginItem : public LoginItem {
public:
    /// What is started, and the directories of autostart entries: the user's first, then the system's. None when there is no home directory.
    struct Places {
        std::filesystem::path program;
        std::vector<std::filesystem::path> directories;
    };

    /// This program, in the directories that the environment names.
    LinuxLoginItem();
    explicit LinuxLoginItem(Places places);

    /// `RequiresApproval` when a desktop's settings have switched the entry off, `NotFound` when the program that it starts is gone.
    [[nodiscard]] LoginItemStatus status() const override;

    /// Writes the user's entry in place of whatever was there.
    Outcome registerItem() override;

    /// Removes the user's entry, or writes one that switches the system's off.
    Outcome unregisterItem() override;

private:
    [[nodiscard]] bool hasSystemEntry() const;
    [[nodiscard]] Outcome write(const std::string& text) const;
    [[nodiscard]] std::string enabledEntry() const;

    const Places places_;
};

} // namespace tocca::platform::linux
