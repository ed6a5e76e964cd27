#pragma once

#include "Platform/Desktop/OpenPanels.h"
#include "Platform/Linux/Freedesktop/FolderPortal.h"
#include "Platform/Linux/Qt/Windows/FolderDialog.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"

#include <memory>

namespace tocca::platform::linux {

/// Panels for choosing a folder: the desktop portal's, or Qt's own dialog where there is no portal or it does not answer.
/// Lifetime: ends before `windows`.
class LinuxOpenPanels : public OpenPanels {
public:
    explicit LinuxOpenPanels(OwnWindows& windows) noexcept
        : windows_(windows)
    {}

    /// While a panel is open, that one comes to the front. A portal's cannot be told to, nor seen to hang: its request is given up, as if
    /// the person had cancelled it, and another one made.
    void chooseDirectory(const std::string& prompt, Completion completion) override;

private:
    void askPortal(const std::string& prompt);
    void showOwnDialog(const std::string& prompt);
    void finish(const std::optional<std::filesystem::path>& directory);

    OwnWindows& windows_;
    Completion pending_;
    std::unique_ptr<FolderPortal> portal_; // of the request under way
    std::unique_ptr<FolderDialog> dialog_;
};

} // namespace tocca::platform::linux
