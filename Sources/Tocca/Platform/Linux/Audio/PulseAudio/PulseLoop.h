#pragma once

struct pa_context;
struct pa_mainloop_api;
struct pa_operation;
struct pa_threaded_mainloop;

namespace tocca::platform::linux {

/// The thread on which PulseAudio's client library works.
///
/// Threads: control, except for `Lock`.
class PulseLoop {
public:
    /// Holds that thread off for a scope. Threads: any but the loop's own.
    class Lock {
    public:
        explicit Lock(const PulseLoop& loop);
        ~Lock();
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;

    private:
        pa_threaded_mainloop* const loop_;
    };

    /// `threadName` is kept to 15 bytes.
    explicit PulseLoop(const char* threadName);

    /// Order: after every connection made on it has ended.
    ~PulseLoop();
    PulseLoop(const PulseLoop&) = delete;
    PulseLoop& operator=(const PulseLoop&) = delete;

    [[nodiscard]] pa_mainloop_api* api() const noexcept;

private:
    pa_threaded_mainloop* const loop_;
};

/// Lets an operation of the client library end by itself. Null stands for one that could not begin.
void forget(pa_operation* operation);

/// Ends a connection without any further callback and makes `context` null, which it may be already. Threads: under the loop's lock.
void endConnection(pa_context*& context);

} // namespace tocca::platform::linux
