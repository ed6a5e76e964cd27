#pragma once

#include "Support/Executor.h"

namespace tocca::platform {

/// The queue of the main thread: every published value is written by its tasks.
class MainQueue : public Executor {
public:
    /// Queues `task` like `post`, through preallocated storage; a queue that is full drops its oldest such task.
    ///
    /// Order: tasks posted this way keep their order among themselves; against `post` it is that of arrival only as long
    /// as neither lane is behind.
    /// Threads: any.
    /// Real-time: never allocates, locks or waits.
    virtual void postRealtime(Task task) noexcept = 0;

    /// Runs `task` on the main thread no sooner than `seconds` from now. Threads: main.
    virtual void postAfter(double seconds, Task task) = 0;
};

} // namespace tocca::platform
