#include "Instruments/XWindow.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <xcb/xcb.h>

namespace tocca::instruments {

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

} // namespace

XWindow::XWindow(const Traits& traits)
    : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("there is no X server");
    }
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    root_ = screen->root;
    window_ = xcb_generate_id(connection);
    constexpr std::uint16_t kSide = 120;
    const std::array<std::uint32_t, 2> values{screen->white_pixel, traits.overridesRedirect ? 1U : 0U};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, root_, 0, 0,
                      traits.coversScreen ? screen->width_in_pixels : kSide,
                      traits.coversScreen ? screen->height_in_pixels : kSide, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values.data());
    const std::string classes = traits.instance + '\0' + traits.className + '\0';
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(classes.size()), classes.data());
    xcb_map_window(connection, window_);
    synchronize();
}

XWindow::~XWindow()
{
    xcb_destroy_window(connection_.get(), window_);
    synchronize();
}

void XWindow::setText(const char* property, const std::string& text)
{
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, atom(property), XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    synchronize();
}

void XWindow::takeFocus()
{
    bool isViewable = false;
    while (!isViewable) { // a window manager shows it in its own time
        const Owned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection_.get(),
                                            xcb_get_window_attributes(connection_.get(), window_), nullptr),
            std::free);
        isViewable = attributes == nullptr || attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    }
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window_, XCB_CURRENT_TIME);
    synchronize();
}

void XWindow::activate()
{
    constexpr std::uint32_t kFromPager = 2;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window_;
    message.type = atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = kFromPager;
    std::array<char, 32> event{};
    static_assert(sizeof(message) <= sizeof(event));
    std::memcpy(event.data(), &message, sizeof(message));
    xcb_send_event(connection_.get(), 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY, event.data());
    synchronize();
}

void XWindow::publishAs(const char* property)
{
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, atom(property), XCB_ATOM_WINDOW, 32,
                        1, &window_);
    synchronize();
}

void XWindow::publishNoneAs(const char* property)
{
    constexpr xcb_window_t kNone = XCB_WINDOW_NONE;
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, atom(property), XCB_ATOM_WINDOW, 32,
                        1, &kNone);
    synchronize();
}

void XWindow::withdraw(const char* property)
{
    xcb_delete_property(connection_.get(), root_, atom(property));
    synchronize();
}

void XWindow::hide()
{
    xcb_unmap_window(connection_.get(), window_);
    synchronize();
}

bool XWindow::grabKeyboard()
{
    const auto cookie = xcb_grab_keyboard(connection_.get(), 0, window_, XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Owned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(connection_.get(), cookie, nullptr),
                                                 std::free);
    return reply != nullptr && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void XWindow::ungrabKeyboard()
{
    xcb_ungrab_keyboard(connection_.get(), XCB_CURRENT_TIME);
    synchronize();
}

std::uint32_t XWindow::atom(const char* name)
{
    const auto cookie =
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_.get(), cookie, nullptr),
                                               std::free);
    return reply != nullptr ? reply->atom : std::uint32_t{XCB_ATOM_NONE};
}

void XWindow::synchronize()
{
    std::free(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

} // namespace tocca::instruments
