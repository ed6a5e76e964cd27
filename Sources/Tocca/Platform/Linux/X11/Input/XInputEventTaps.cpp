#include "Platform/Linux/X11/Input/XInputEventTaps.h"

#include <utility>

namespace tocca::platform::linux {

namespace {

class XInputEventTap final : public EventTap {
public:
    explicit XInputEventTap(std::shared_ptr<XInputCapture> capture)
        : capture_(std::move(capture))
    {}

    XInputEventTap(const XInputEventTap&) = delete;
    XInputEventTap& operator=(const XInputEventTap&) = delete;

    ~XInputEventTap() override { capture_->setEnabled(false); }

    [[nodiscard]] std::unique_ptr<RunLoopSource> attachToCurrentThread() override
    {
        return capture_->attach();
    }

    void setEnabled(bool isEnabled) override { capture_->setEnabled(isEnabled); }

private:
    const std::shared_ptr<XInputCapture> capture_;
};

} // namespace

XInputEventTaps::XInputEventTaps(KeyGate gate)
    : gate_(std::move(gate))
{}

std::unique_ptr<EventTap> XInputEventTaps::create(EventMask mask, EventHandler handler)
{
    auto opened = XInputConnection::open();
    if (!opened) {
        return nullptr;
    }
    return std::make_unique<XInputEventTap>(
        std::make_shared<XInputCapture>(std::move(opened.value()), mask, std::move(handler), gate_));
}

} // namespace tocca::platform::linux
