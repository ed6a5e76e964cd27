#pragma once

#include "Platform/Desktop/Panels.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <vector>

namespace tocca::platform::linux {

/// The overlays. They show on X11 only: elsewhere no program can place a window or let clicks through.
///
/// Lifetime: outlives its panels.
class LinuxPanels : public Panels {
public:
    LinuxPanels(OwnWindows& family, XDesktop& desktop) noexcept
        : family_(family)
        , desktop_(desktop)
    {}

    [[nodiscard]] std::unique_ptr<Panel> make(const Rect& frame, WindowLevel level,
                                              std::unique_ptr<View> content) override;

private:
    class LinuxPanel;

    /// Puts the visible panels in front of everything, higher levels above lower ones.
    void restack();

    OwnWindows& family_;
    XDesktop& desktop_;
    std::vector<LinuxPanel*> panels_;
};

} // namespace tocca::platform::linux
