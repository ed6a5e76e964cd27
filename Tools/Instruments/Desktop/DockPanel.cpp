#include "Instruments/Desktop/DockPanel.h"

#include "Instruments/Waiting.h"

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace tocca::instruments {

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t dockAtom(xcb_connection_t* connection, std::string_view name)
{
    const Owned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(
            connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
            nullptr),
        std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

DockPanel::DockPanel(Edge edge, int thickness)
    : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("there is no X server");
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    // Not what the setup says, which is as old as the server.
    const Owned<xcb_get_geometry_reply_t> screen(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, root), nullptr), std::free);
    if (!screen) {
        throw std::runtime_error("the screen has no size");
    }
    constexpr std::uint32_t kBlue = 0x3060C0;
    const auto height = static_cast<std::uint32_t>(thickness);
    const std::uint32_t y = edge == Edge::top ? 0 : screen->height - height;
    window_ = xcb_generate_id(connection);
    const std::array<std::uint32_t, 2> values{kBlue, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, root, 0, static_cast<std::int16_t>(y),
                      screen->width, static_cast<std::uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
    const auto set = [&](std::string_view property, xcb_atom_t type,
                         const std::vector<std::uint32_t>& words) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, dockAtom(connection, property), type,
                            32, static_cast<std::uint32_t>(words.size()), words.data());
    };
    const std::uint32_t above = edge == Edge::top ? height : 0;
    const std::uint32_t below = edge == Edge::bottom ? height : 0;
    set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {dockAtom(connection, "_NET_WM_WINDOW_TYPE_DOCK")});
    set("_NET_WM_STRUT", XCB_ATOM_CARDINAL, {0, 0, above, below});
    const std::uint32_t right = screen->width - 1U;
    set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
        {0, 0, above, below, 0, 0, 0, 0, 0, above > 0 ? right : 0, 0, below > 0 ? right : 0});
    constexpr std::uint32_t kPlacedByProgram = 4;
    set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, // or it is the window manager's to place
        {kPlacedByProgram, 0, y, screen->width, height, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    xcb_map_window(connection, window_);
    const bool isShown = becomesTrue([&] {
        const Owned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window_),
                                            nullptr),
            std::free);
        return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    });
    if (!isShown) {
        throw std::runtime_error("the panel does not appear");
    }
}

DockPanel::~DockPanel()
{
    xcb_destroy_window(connection_.get(), window_);
    std::free(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

bool DockPanel::waitForPress()
{
    return becomesTrue([this] {
        const Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection_.get()), std::free);
        return event && event->response_type == XCB_BUTTON_PRESS;
    });
}

} // namespace tocca::instruments
