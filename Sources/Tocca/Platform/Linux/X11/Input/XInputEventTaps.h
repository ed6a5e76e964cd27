#pragma once

#include "Platform/EventTap.h"
#include "Platform/Linux/X11/Input/XInputCapture.h"

namespace tocca::platform::linux {

/// Event taps on the X server that DISPLAY names, by XInput's raw events.
///
/// On a Wayland session they hear X11 windows alone; `X11TrustQuery` knows.
class XInputEventTaps : public EventTaps {
public:
    /// No key is reported while `gate` says so; its threads are the capture threads of the taps.
    explicit XInputEventTaps(KeyGate gate = {});

    [[nodiscard]] std::unique_ptr<EventTap> create(EventMask mask, EventHandler handler) override;

private:
    KeyGate gate_;
};

} // namespace tocca::platform::linux
