#pragma once

#include "Platform/Desktop/Geometry.h"
#include "Platform/Desktop/View.h"

#include <functional>
#include <memory>
#include <string>

namespace tocca::platform {

/// What a titled window is made with. It can be closed, minimised and resized, and its content reaches under the title bar where the
/// desktop allows that.
struct WindowOptions {
    std::string title; ///< for the desktop; the window itself does not show it where that can be avoided
    Size contentSize;
    Size minimumSize;
    Colour background;
};

/// An ordinary window. Threads: main.
class Window {
public:
    /// Asked when the person or the desktop wants the window closed; false keeps it.
    using ShouldClose = std::function<bool()>;

    virtual ~Window() = default;

    virtual void setShouldClose(ShouldClose handler) = 0;

    /// Puts the window in the middle of its screen.
    virtual void center() = 0;

    /// Shows the window, on the desktop that the person is on, in front of the others and with the keyboard.
    virtual void makeKeyAndOrderFront() = 0;

    /// Hides the window with everything in it as it is.
    virtual void orderOut() = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
};

/// Makes windows. Threads: main.
class Windows {
public:
    virtual ~Windows() = default;

    /// A window that is not shown yet and keeps `content` for as long as it lives.
    [[nodiscard]] virtual std::unique_ptr<Window> make(const WindowOptions& options,
                                                       std::unique_ptr<View> content) = 0;
};

} // namespace tocca::platform
