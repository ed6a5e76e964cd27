#include "Instruments/XTestKeyboard.h"

#include "Instruments/Now.h"

#include <cstdlib>
#include <stdexcept>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace tocca::instruments {

namespace {

constexpr std::uint16_t kFirstKeycode = 8; // X keycodes are evdev codes plus 8

std::uint8_t keycode(std::uint16_t key)
{
    if (key > UINT8_MAX - kFirstKeycode) {
        throw std::out_of_range("no X keycode for evdev code " + std::to_string(key));
    }
    return static_cast<std::uint8_t>(key + kFirstKeycode);
}

} // namespace

XTestKeyboard::XTestKeyboard()
    : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("there is no X server");
    }
    using Version = std::unique_ptr<xcb_test_get_version_reply_t, decltype(&std::free)>;
    const auto request = xcb_test_get_version(connection, XCB_TEST_MAJOR_VERSION, XCB_TEST_MINOR_VERSION);
    if (Version(xcb_test_get_version_reply(connection, request, nullptr), std::free) == nullptr) {
        throw std::runtime_error("the X server has no XTEST extension");
    }
}

double XTestKeyboard::press(std::uint16_t key)
{
    return send(XCB_KEY_PRESS, keycode(key));
}

double XTestKeyboard::release(std::uint16_t key)
{
    return send(XCB_KEY_RELEASE, keycode(key));
}

double XTestKeyboard::pressButton(std::uint8_t button)
{
    return send(XCB_BUTTON_PRESS, button);
}

double XTestKeyboard::releaseButton(std::uint8_t button)
{
    return send(XCB_BUTTON_RELEASE, button);
}

double XTestKeyboard::movePointer(int x, int y)
{
    return send(XCB_MOTION_NOTIFY, 0, x, y);
}

double XTestKeyboard::send(std::uint8_t type, std::uint8_t detail, int x, int y)
{
    xcb_test_fake_input(connection_.get(), type, detail, XCB_CURRENT_TIME, XCB_NONE,
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    const double sentAt = now();
    xcb_flush(connection_.get());
    return sentAt;
}

} // namespace tocca::instruments
