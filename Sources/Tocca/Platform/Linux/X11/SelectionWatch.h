#pragma once

#include "Platform/Linux/X11/XConnection.h"

#include <xcb/xcb.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tocca::platform::linux {

/// Follows, on a connection of its own, who owns some selections of the X server that DISPLAY names. A compositor or a tray shows that it
/// is there by owning one.
///
/// Threads: one at a time; the observer is called from inside `serve`.
class SelectionWatch {
public:
    using Observer = std::function<void()>;

    /// Watches `names`, to each of which the screen's number is added: "_NET_WM_CM_S". Waits for the server; null when there is none or
    /// it cannot tell.
    [[nodiscard]] static std::unique_ptr<SelectionWatch> open(const std::vector<std::string>& names,
                                                              Observer changed);

    SelectionWatch(const SelectionWatch&) = delete;
    SelectionWatch& operator=(const SelectionWatch&) = delete;

    /// The owner of the selection with this place in `names`, `XCB_NONE` while nobody is.
    [[nodiscard]] xcb_window_t owner(std::size_t place) const { return selections_.at(place).owner; }

    /// Takes in what the server has sent; whenever `fd` is readable. False when the server is lost.
    bool serve();

    [[nodiscard]] int fd() const noexcept { return connection_.fd(); }

private:
    struct Selection {
        xcb_atom_t name = XCB_ATOM_NONE;
        xcb_window_t owner = XCB_NONE;
    };

    SelectionWatch(XConnection connection, std::uint8_t firstEvent, std::vector<Selection> selections,
                   Observer changed);

    const XConnection connection_;
    const std::uint8_t firstEvent_;
    std::vector<Selection> selections_;
    const Observer changed_;
};

} // namespace tocca::platform::linux
