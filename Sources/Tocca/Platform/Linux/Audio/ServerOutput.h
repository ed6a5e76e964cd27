#pragma once

#include <functional>

namespace tocca::platform::linux {

/// What a sound server can do for us.
enum class Availability {
    Unknown, ///< not heard from yet
    Absent,  ///< cannot be connected to
    NoSink,  ///< there, but has nothing to play to
    Ready,   ///< there, and plays
};

/// The part of the output that speaks to one kind of sound server.
///
/// It connects, notices loss, and connects again by itself. Blocks are rendered while it is `Ready` and awake.
/// Order: the observer hears `Ready` before the first block is rendered, and that it ended after the last one was.
/// Threads: control. The observer is called there, never from inside `open`.
/// Lifetime: destruction ends the last call of the source before it returns.
class ServerOutput {
public:
    using Observer = std::function<void(Availability)>;

    virtual ~ServerOutput() = default;

    /// Begins to look for the server; called once.
    virtual void open() = 0;

    /// Looks for the server now instead of at the next regular attempt, as there is a sign of it.
    virtual void lookNow() = 0;

    /// Keeps rendering, or gives the server's time back. An output begins awake.
    virtual void setAwake(bool isAwake) = 0;

    /// Looks after an output that is `Ready` and awake; called a few times a second. Units: seconds, monotonic.
    virtual void inspect(double now) = 0;
};

} // namespace tocca::platform::linux
