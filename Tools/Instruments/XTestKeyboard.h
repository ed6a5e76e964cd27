#pragma once

#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace tocca::instruments {

/// A synthetic keyboard and mouse on the X server that DISPLAY names.
///
/// Units: keys are evdev codes (linux/input-event-codes.h), buttons X's numbers (1 left, 2 middle, 3 right, 4 to 7 the wheel);
/// times are seconds on CLOCK_MONOTONIC.
/// Threads: one at a time.
class XTestKeyboard {
public:
    /// Errors: throws `std::runtime_error` without a server that has XTEST.
    XTestKeyboard();

    /// Each call returns the time at which the event was sent to the server.
    double press(std::uint16_t key);
    double release(std::uint16_t key);
    double pressButton(std::uint8_t button);
    double releaseButton(std::uint8_t button);

    /// Moves the pointer. Units: pixels of the screen.
    double movePointer(int x, int y);

private:
    double send(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0);

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
};

} // namespace tocca::instruments
