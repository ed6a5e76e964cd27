#pragma once

#include "Platform/Desktop/LoginItem.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tocca::platform::linux {

/// An XDG autostart entry. The file is the truth: it is read each time, and the user's own hides one of the system's.
class LinuxLoginItem : public LoginItem {
public:
    /// Where entries are, the user's first; none when the system names no directory for them.
    struct Places {
        std::filesystem::path program; ///< what is to be started
        std::vector<std::filesystem::path> directories;
    };

    /// This program, in the directories that the environment names.
    LinuxLoginItem();
    explicit LinuxLoginItem(Places places);

    /// `RequiresApproval` for an entry that a desktop's settings have switched off, `NotFound` for one whose program is gone.
    [[nodiscard]] LoginItemStatus status() const override;

    /// Writes the user's entry, whatever was there.
    Outcome registerItem() override;

    /// Removes the user's entry, or leaves one there that hides the system's.
    Outcome unregisterItem() override;

private:
    [[nodiscard]] bool hasSystemEntry() const;
    [[nodiscard]] Outcome write(const std::string& text) const;
    [[nodiscard]] std::string enabledEntry() const;

    const Places places_;
};

} // namespace tocca::platform::linux
