#pragma once

#include "Instruments/Process.h"
#include "Instruments/XScreen.h"

#include <memory>
#include <optional>
#include <utility>

namespace tocca::instruments {

/// A panel that takes in status icons, at the bottom right of the screen.
class Tray {
public:
    /// Starts the panel.
    Tray();

    /// Waits for an icon and returns its middle, in pixels of the screen; none when none comes.
    [[nodiscard]] std::optional<std::pair<int, int>> icon();

private:
    Process panel_;
    XScreen screen_;
};

} // namespace tocca::instruments
