#pragma once

#include <cstdint>
#include <memory>
#include <string>

struct xcb_connection_t;

namespace tocca::instruments {

/// A window of a program of its own, as the X server sees it.
///
/// Each call returns once the server has done what was asked for.
/// Threads: one at a time. Errors: throws `std::runtime_error` without a server.
class XWindow {
public:
    struct Traits {
        std::string instance;           ///< of WM_CLASS
        std::string className;          ///< of WM_CLASS
        bool overridesRedirect = false; ///< keeps window managers away
        bool coversScreen = false;      ///< as large as the screen
    };

    /// Makes a window and shows it.
    explicit XWindow(const Traits& traits);
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    /// Closes the window.
    ~XWindow();

    void setText(const char* property, const std::string& text);

    /// Takes the keyboard focus, once the window is to be seen.
    void takeFocus();

    /// Asks the window manager to bring the window to the front.
    void activate();

    /// Names the window in a property of the root window, as window managers do: "_NET_ACTIVE_WINDOW".
    void publishAs(const char* property);

    /// Says in such a property that it is no window.
    void publishNoneAs(const char* property);

    /// Takes such a property away.
    void withdraw(const char* property);

    void hide();

    /// Takes the whole keyboard for the window's program; false when somebody else has it.
    bool grabKeyboard();
    void ungrabKeyboard();

private:
    std::uint32_t atom(const char* name);
    void synchronize();

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
    std::uint32_t root_ = 0;
    std::uint32_t window_ = 0;
};

} // namespace tocca::instruments
