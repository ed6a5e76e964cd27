#pragma once

#include "Platform/Linux/X11/FrontWindow.h"
#include "Platform/Linux/X11/PromptWatch.h"
#include "Platform/Linux/X11/WindowFacts.h"
#include "Platform/Linux/X11/XConnection.h"
#include "Platform/Linux/X11/XQuestions.h"

#include <xcb/xcb.h>

#include <memory>

namespace tocca::platform::linux {

/// Follows, on a connection of its own to the X server that DISPLAY names, which window is in front and whether a lock screen
/// or a password prompt has the keyboard.
///
/// Threads: one at a time; the observers are called from inside `serve`.
class DesktopWatch {
public:
    struct Observers {
        FrontWindow::Observer frontChanged;
        PromptWatch::Observer promptChanged;
        PromptWatch::Observer shellFocused; ///< as in `PromptWatch::Observers`
    };

    /// Connects, which alone waits for the server; null when there is none.
    [[nodiscard]] static std::unique_ptr<DesktopWatch> open(Observers observers);

    DesktopWatch(const DesktopWatch&) = delete;
    DesktopWatch& operator=(const DesktopWatch&) = delete;

    /// Takes in what the server has sent; whenever `fd` is readable. False when the server is lost.
    bool serve();

    [[nodiscard]] int fd() const noexcept { return connection_.fd(); }

private:
    DesktopWatch(XConnection connection, Observers observers);

    void begin();
    void handle(const xcb_generic_event_t& event);

    const XConnection connection_;
    XQuestions questions_;
    WindowInquiry inquiry_;
    PromptWatch prompts_;
    FrontWindow front_;
};

} // namespace tocca::platform::linux
