#include "Platform/Linux/X11/ButtonWatch.h"

#include <xcb/xinput.h>

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::uint16_t kMajor = 2;
constexpr std::uint16_t kMinor = 2; // below 2.1 events stay hidden while another client has the pointer
constexpr std::uint32_t kMainButtons = 3;

} // namespace

std::unique_ptr<ButtonWatch> ButtonWatch::open(Observer observer)
{
    auto connection = XConnection::open();
    if (!connection) {
        return nullptr;
    }
    const auto* const input = xcb_get_extension_data(connection->get(), &xcb_input_id);
    if (input == nullptr || input->present == 0) {
        return nullptr;
    }
    const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection->get(), xcb_input_xi_query_version(connection->get(), kMajor, kMinor), nullptr));
    if (!version) {
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<ButtonWatch>(
        new ButtonWatch(std::move(*connection), input->major_opcode, std::move(observer)));
}

ButtonWatch::ButtonWatch(XConnection connection, std::uint8_t opcode, Observer observer)
    : connection_(std::move(connection))
    , opcode_(opcode)
    , observer_(std::move(observer))
{
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } events{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
             .mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE};

    xcb_input_xi_select_events(connection_.get(), connection_.root(), 1, &events.head);
    xcb_flush(connection_.get());
}

bool ButtonWatch::serve()
{
    while (const auto event = connection_.nextEvent()) {
        if (typeOf(*event) != XCB_GE_GENERIC) {
            continue;
        }
        const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(*event);
        if (generic.extension != opcode_) {
            continue;
        }
        const bool isPress = generic.event_type == XCB_INPUT_RAW_BUTTON_PRESS;
        const auto& button = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(*event);
        if ((!isPress && generic.event_type != XCB_INPUT_RAW_BUTTON_RELEASE) ||
            button.detail > kMainButtons) {
            continue;
        }
        const XReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
            connection_.get(), xcb_query_pointer(connection_.get(), connection_.root()), nullptr));
        observer_(isPress ? Action::pressed : Action::released,
                  pointer ? pointer->child : xcb_window_t{XCB_NONE});
    }
    return connection_.isAlive();
}

} // namespace tocca::platform::linux
