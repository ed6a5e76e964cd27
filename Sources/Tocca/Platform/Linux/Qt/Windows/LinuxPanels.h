#pragma once

#include "Platform/Desktop/Panels.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <vector>

namespace tocca::platform::linux {

/// Overlays on X11; elsewhere nobody can place a window and let clicks through, so there they stay hidden.
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

    /// Puts the panels that are to be seen in front, the lower levels below the higher ones.
    void restack();

    OwnWindows& family_;
    XDesktop& desktop_;
    std::vector<LinuxPanel*> panels_;
};

} // namespace tocca::platform::linux
