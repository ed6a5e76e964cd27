#pragma once

#include "Platform/Linux/Qt/Windows/OwnWindows.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace tocca::platform::linux {

/// The actions of a menu that every program has, by their selectors: editing, hiding, closing, quitting. Threads: main.
class StandardActions {
public:
    struct Commands {
        std::function<void()> showAbout;
        std::function<void()> quit;
        std::function<void()> hidden; ///< the program has hidden its windows
    };

    StandardActions(OwnWindows& windows, Commands commands);

    /// Does `action`; false when it is none of these. One that finds nothing to act on does nothing.
    bool perform(std::string_view action);

private:
    void hideOthers();
    void showAll();

    OwnWindows& windows_;
    const Commands commands_;
    std::vector<std::uint32_t> minimised_; // windows of other programs, lowest first
};

} // namespace tocca::platform::linux
