#pragma once

#include "Platform/Linux/System/Threads/LinuxTimers.h"
#include "Platform/Linux/System/Threads/WakeDescriptor.h"
#include "Platform/MainQueue.h"
#include "Support/BoundedQueue.h"

#include <atomic>
#include <deque>
#include <mutex>

namespace tocca::platform::linux {

/// The main queue. The main thread's event loop serves it: it calls `runReady` whenever `fd` is readable.
///
/// Order: an event loop nested in a task goes on with the tasks behind it.
/// Lifetime: outlives every thread that posts; tasks left at its end are dropped.
class LinuxMainQueue : public MainQueue {
public:
    explicit LinuxMainQueue(LinuxTimers& timers);

    void post(Task task) override;
    void postRealtime(Task task) noexcept override;
    void postAfter(double seconds, Task task) override;

    [[nodiscard]] int fd() const noexcept { return wake_.fd(); }

    /// Runs a limited number of queued tasks, so that other events get their turn.
    void runReady();

private:
    bool take(Task& task);
    void ring() noexcept;

    LinuxTimers& timers_;
    std::mutex mutex_;
    std::deque<Task> ordinary_; // any -> main, under mutex_
    BoundedQueue<Task> realtime_;
    std::atomic<bool> isRung_{false}; // both: whether the descriptor is readable or about to be
    WakeDescriptor wake_;
};

} // namespace tocca::platform::linux
