#pragma once

#include <functional>

struct pw_loop;
struct pw_thread_loop;
struct spa_source;

namespace tocca::platform::linux {

/// The control thread: looks for sound servers, connects to them and watches them.
///
/// Threads: `ControlLoop` itself: main. What runs on it (events, timers, watches): control, unless said otherwise.
/// Lifetime: outlives every event, timer and watch made on it; those end on the control thread or after `stop`.
class ControlLoop {
public:
    /// `threadName` is kept to 15 bytes.
    explicit ControlLoop(const char* threadName = "tocca-audio");
    ~ControlLoop();
    ControlLoop(const ControlLoop&) = delete;
    ControlLoop& operator=(const ControlLoop&) = delete;

    void start();

    /// Ends the thread after the running callback; calling it again does nothing.
    void stop();

    [[nodiscard]] pw_loop* native() const noexcept;

private:
    pw_thread_loop* loop_;
};

/// Something that calls on the control thread, for as long as it lives.
class ControlSource {
public:
    ControlSource(const ControlSource&) = delete;
    ControlSource& operator=(const ControlSource&) = delete;

protected:
    ControlSource(ControlLoop& loop, std::function<void()> call);
    ~ControlSource();

    ControlLoop& loop_;
    std::function<void()> call_;
    spa_source* source_ = nullptr; // made by the heirs
};

/// A call that any thread may ask the control thread for. Several requests before it runs are one.
class ControlEvent : public ControlSource {
public:
    ControlEvent(ControlLoop& loop, std::function<void()> call);

    /// Asks for the call. Threads: any. Never waits.
    void signal() noexcept;
};

/// A timer on the control thread. Units: seconds.
class ControlTimer : public ControlSource {
public:
    ControlTimer(ControlLoop& loop, std::function<void()> call);

    /// Calls once, `delay` from now, instead of whatever was scheduled before.
    void once(double delay);

    /// Calls every `interval`, instead of whatever was scheduled before.
    void every(double interval);

    void cancel();

private:
    void schedule(double delay, double interval);
};

/// Calls on the control thread whenever a file descriptor is readable. Lifetime: closes the descriptor.
class ControlWatch : public ControlSource {
public:
    ControlWatch(ControlLoop& loop, int descriptor, std::function<void()> call);
};

} // namespace tocca::platform::linux
