#pragma once

#include "Platform/EventTap.h"
#include "Platform/Linux/System/FileDescriptor.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/X11/Input/KeyboardState.h"
#include "Platform/Linux/X11/Input/XInputConnection.h"

#include <atomic>
#include <functional>
#include <memory>

namespace tocca::platform::linux {

class RunLoop;

/// Says whether keys may be reported just now. It is asked for every event on the capture thread, so it must not wait.
///
/// While it says no, no key is reported, not even the release of one that was pressed before. The first event after that brings the
/// releases that were missed. An empty gate always says yes.
using KeyGate = std::function<bool()>;

/// Hears an X server's keys, buttons and wheel, and reports them as the platform's events: the part of an event tap that lives on a loop.
///
/// Threads: constructor: any. `setEnabled`: any. The rest: the loop's.
/// Order: events are delivered as the server sent them.
/// Real-time: delivery takes no lock, waits for nothing and allocates nothing of ours; xcb allocates each event it reads, and
/// it is freed as soon as it has been delivered.
class XInputCapture : public std::enable_shared_from_this<XInputCapture> {
public:
    XInputCapture(std::unique_ptr<XInputConnection> connection, EventMask mask, EventHandler handler,
                  KeyGate gate);

    /// Attaches to the calling thread's loop.
    [[nodiscard]] std::unique_ptr<RunLoopSource> attach();

    void setEnabled(bool isEnabled);

private:
    class Attachment;

    void serveServer();
    void serveTimer();
    void followWish();
    void reconnect();
    [[nodiscard]] bool beginListening();
    void endListening();
    void lose();
    void armTimer(double seconds) noexcept;

    void dispatchEvents(bool mayRead);
    void dispatch(const xcb_generic_event_t& event, double arrival);
    void dispatchInput(const xcb_generic_event_t& event, double arrival);
    void dispatchLock(bool isLocked, double time);
    void dispatchButton(std::uint32_t button, double time);
    void deliver(const KeyTransition& transition, double time);
    void deliver(EventType type, const InputEvent& event);
    [[nodiscard]] bool mayReportKeys(double time);

    const EventMask mask_;
    const EventHandler handler_;
    const KeyGate gate_;
    const LinuxClock clock_;
    const FileDescriptor timer_;                // wakes the loop to follow `isWanted_`
    const int timerDescriptor_;                 // as the loop looks it up
    std::atomic<bool> isWanted_{false};         // any -> loop
    std::atomic<const RunLoop*> loop_{nullptr}; // loop -> any
    std::unique_ptr<XInputConnection> connection_;
    int serverDescriptor_;
    bool isListening_ = false;
    bool hasListened_ = false;
    bool isServing_ = false;
    bool isBehind_ = false;           // keys were withheld, and have not been caught up with
    std::uint32_t firstSequence_ = 0; // of the events that count
    double lastAttempt_ = 0.0;        // seconds; when a lost server was last looked for
    KeyboardState keys_;
};

} // namespace tocca::platform::linux
