#include "Platform/Linux/X11/Input/XInputCapture.h"

#include "Platform/Linux/System/Threads/RunLoop.h"
#include "Platform/Linux/X11/Input/ServerTime.h"
#include "Platform/Linux/X11/Input/Xkb.h"

#include <X11/X.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <sys/timerfd.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr double kRetryInterval = 1.0; // seconds

constexpr EventMask kKeyTypes =
    maskOf(EventType::KeyDown) | maskOf(EventType::KeyUp) | maskOf(EventType::FlagsChanged);

int makeTimer()
{
    const int timer = ::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (timer < 0) {
        std::perror("timerfd_create");
        std::abort();
    }
    return timer;
}

} // namespace

class XInputCapture::Attachment final : public RunLoopSource {
public:
    Attachment(std::unique_ptr<LoopSource> server, std::unique_ptr<LoopSource> timer) noexcept
        : server_(std::move(server))
        , timer_(std::move(timer))
    {}

private:
    std::unique_ptr<LoopSource> server_;
    std::unique_ptr<LoopSource> timer_;
};

XInputCapture::XInputCapture(std::unique_ptr<XInputConnection> connection, EventMask mask,
                             EventHandler handler, KeyGate gate)
    : mask_(mask)
    , handler_(std::move(handler))
    , gate_(std::move(gate))
    , timer_(makeTimer())
    , timerDescriptor_(timer_.get())
    , connection_(std::move(connection))
    , serverDescriptor_(connection_->fd())
{}

std::unique_ptr<RunLoopSource> XInputCapture::attach()
{
    const auto loop = RunLoop::current();
    loop_.store(loop.get(), std::memory_order_release);
    auto server = loop->attach(&serverDescriptor_, [self = shared_from_this()] { self->serveServer(); });
    auto timer = loop->attach(&timerDescriptor_, [self = shared_from_this()] { self->serveTimer(); });
    return std::make_unique<Attachment>(std::move(server), std::move(timer));
}

void XInputCapture::setEnabled(bool isEnabled)
{
    isWanted_.store(isEnabled, std::memory_order_release);
    const auto loop = RunLoop::current();
    const bool isOnLoop = loop && loop.get() == loop_.load(std::memory_order_acquire);
    if (isOnLoop && !isServing_) {
        followWish();
    } else {
        armTimer(0.0); // another thread, or a handler while events are delivered: the loop does it next
    }
}

void XInputCapture::serveServer()
{
    isServing_ = true;
    dispatchEvents(true);
    if (const auto roles = connection_->takeLayout()) {
        keys_.setRoles(*roles);
    }
    dispatchEvents(false); // asking for the layout may have read events
    if (!connection_->isAlive()) {
        lose();
    }
    isServing_ = false;
}

void XInputCapture::serveTimer()
{
    std::uint64_t expirations = 0;
    [[maybe_unused]] const ssize_t count = ::read(timer_.get(), &expirations, sizeof(expirations));
    followWish();
}

void XInputCapture::followWish()
{
    isServing_ = true;
    const bool isWanted = isWanted_.load(std::memory_order_acquire);
    if (!connection_) {
        if (isWanted) {
            reconnect();
        }
    } else if (!isWanted) {
        endListening();
    } else if (!isListening_ && !beginListening()) {
        lose();
    }
    isServing_ = false;
}

void XInputCapture::reconnect()
{
    const double now = clock_.now();
    if (const double rest = lastAttempt_ + kRetryInterval - now; rest > 0) {
        armTimer(rest);
        return;
    }
    lastAttempt_ = now;
    if (auto opened = XInputConnection::open()) {
        connection_ = std::move(opened.value());
        if (beginListening()) {
            return;
        }
        connection_.reset();
    }
    armTimer(kRetryInterval);
}

bool XInputCapture::beginListening()
{
    connection_->select({.wantsKeys = (mask_ & kKeyTypes) != 0, .wantsButtons = (mask_ & ~kKeyTypes) != 0});
    const auto snapshot = connection_->snapshot();
    if (!snapshot) {
        return false;
    }
    serverDescriptor_ = connection_->fd();
    isListening_ = true;
    firstSequence_ = snapshot->sequence;
    const double now = clock_.now();
    keys_.setRoles(snapshot->roles);
    if (!mayReportKeys(now)) {
        keys_.observeSilently(snapshot->down, snapshot->isLocked);
    } else if (std::exchange(hasListened_, true)) {
        keys_.resynchronize(snapshot->down, snapshot->isLocked,
                            [this, now](const KeyTransition& transition) { deliver(transition, now); });
    } else {
        keys_.adopt(snapshot->down, snapshot->isLocked);
    }
    // Events that were read together with the answer are here already, so the descriptor does not tell of them.
    dispatchEvents(false);
    return true;
}

void XInputCapture::endListening()
{
    isListening_ = false;
    connection_->select({}); // or the thread would be woken for nothing
}

void XInputCapture::lose()
{
    connection_.reset();
    serverDescriptor_ = -1;
    isListening_ = false;
    if (isWanted_.exchange(false, std::memory_order_acq_rel)) {
        handler_(EventType::TapDisabledByTimeout, {});
    }
}

void XInputCapture::armTimer(double seconds) noexcept
{
    constexpr double kNanoseconds = 1e9;
    itimerspec when{};
    when.it_value.tv_sec = static_cast<time_t>(seconds);
    when.it_value.tv_nsec =
        std::max(1L, static_cast<long>((seconds - std::floor(seconds)) * kNanoseconds)); // 0 would disarm it
    ::timerfd_settime(timer_.get(), 0, &when, nullptr);
}

void XInputCapture::dispatchEvents(bool mayRead)
{
    // One read a turn is enough: whatever the server sends after it makes the descriptor readable again.
    auto event = connection_->nextEvent(mayRead);
    const double arrival =
        clock_.now(); // after the read, or an event could have happened later than it arrived
    for (; event; event = connection_->nextEvent(false)) {
        // A handler that disables the tap gets no further event. What it misses is caught up with when the tap is enabled again.
        isListening_ = isListening_ && isWanted_.load(std::memory_order_acquire);
        const auto age = static_cast<std::int32_t>(event->full_sequence - firstSequence_);
        if (isListening_ && age >= 0) {
            dispatch(*event, arrival);
        }
    }
}

void XInputCapture::dispatch(const xcb_generic_event_t& event, double arrival)
{
    const std::uint8_t type = typeOf(event);
    if (type == XCB_GE_GENERIC) {
        dispatchInput(event, arrival);
    } else if (type == XCB_MAPPING_NOTIFY) {
        connection_->askLayout();
    } else if (type == connection_->keyboardEvent()) {
        const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
        if (state.xkbType != XCB_XKB_STATE_NOTIFY) {
            connection_->askLayout();
        } else {
            dispatchLock((state.lockedMods & LockMask) != 0, timeOfEvent(arrival, state.time));
        }
    }
}

void XInputCapture::dispatchLock(bool isLocked, double time)
{
    if (!mayReportKeys(time)) {
        keys_.setLockedSilently(isLocked);
    } else if (const auto transition = keys_.setLocked(isLocked)) {
        deliver(*transition, time);
    }
}

void XInputCapture::dispatchInput(const xcb_generic_event_t& event, double arrival)
{
    const auto& raw = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
    if (raw.extension != connection_->inputOpcode()) {
        return;
    }
    const double time = timeOfEvent(arrival, raw.time);
    const auto key = static_cast<std::uint8_t>(raw.detail);
    const bool mayReport = mayReportKeys(time);
    switch (raw.event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
        if (!mayReport) {
            keys_.pressSilently(key);
        } else if (const auto transition = keys_.press(key)) { // raw events are never repeats
            deliver(*transition, time);
        }
        break;
    case XCB_INPUT_RAW_KEY_RELEASE:
        if (!mayReport) {
            keys_.releaseSilently(key);
        } else if (const auto transition = keys_.release(key)) {
            deliver(*transition, time);
        }
        break;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        dispatchButton(raw.detail, time);
        break;
    default:
        break;
    }
}

void XInputCapture::dispatchButton(std::uint32_t button, double time)
{
    enum : std::uint32_t {
        kLeft = 1,
        kMiddle = 2,
        kRight = 3,
        kUp = 4,
        kDown = 5,
        kHorizontal = 6,
        kHorizontalEnd = 7
    };

    switch (button) {
    case kLeft:
        return deliver(EventType::LeftMouseDown, {.time = time});
    case kRight:
        return deliver(EventType::RightMouseDown, {.time = time});
    case kUp:
        return deliver(EventType::ScrollWheel, {.scrollDeltaY = 1.0, .time = time});
    case kDown:
        return deliver(EventType::ScrollWheel, {.scrollDeltaY = -1.0, .time = time});
    case kHorizontal:
    case kHorizontalEnd:
        return deliver(EventType::ScrollWheel, {.time = time});
    default:
        return deliver(EventType::OtherMouseDown, {.time = time});
    }
}

void XInputCapture::deliver(const KeyTransition& transition, double time)
{
    InputEvent event = transition.event;
    event.time = time;
    deliver(transition.type, event);
}

void XInputCapture::deliver(EventType type, const InputEvent& event)
{
    if ((mask_ & maskOf(type)) != 0) {
        handler_(type, event);
    }
}

bool XInputCapture::mayReportKeys(double time)
{
    if (gate_ && !gate_()) {
        isBehind_ = true;
        return false;
    }
    if (std::exchange(isBehind_, false)) {
        keys_.catchUp([this, time](const KeyTransition& transition) { deliver(transition, time); });
    }
    return true;
}

} // namespace tocca::platform::linux
