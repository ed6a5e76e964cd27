#pragma once

#include "Platform/InputEvent.h"

#include <functional>
#include <memory>

namespace tocca::platform {

/// Keeps an event tap attached to a thread's loop; destroying it detaches the tap, after which no callback runs.
/// Threads: any but the loop's own.
class RunLoopSource {
public:
    virtual ~RunLoopSource() = default;
};

/// Listens to every key, button and wheel of the session without altering or delaying anything.
///
/// The tap reports transitions; it neither filters repeats nor decides what sounds. While the session is locked or a
/// password prompt holds the keyboard it reports no key.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// Delivers events from now on to the loop of the calling thread, one at a time, in order. Threads: the loop's own.
    [[nodiscard]] virtual std::unique_ptr<RunLoopSource> attachToCurrentThread() = 0;

    /// Starts or ends delivery. A tap that lost its server reports `TapDisabledByTimeout` and tries to connect again when it
    /// is enabled. Threads: any.
    virtual void setEnabled(bool isEnabled) = 0;
};

using EventHandler = std::function<void(EventType, const InputEvent&)>;

/// Makes event taps.
class EventTaps {
public:
    virtual ~EventTaps() = default;

    /// Makes a disabled tap for the types in `mask`, or returns null when events cannot be heard. Threads: any.
    [[nodiscard]] virtual std::unique_ptr<EventTap> create(EventMask mask, EventHandler handler) = 0;
};

} // namespace tocca::platform
