#pragma once

#include "Support/Task.h"

namespace tocca {

/// Runs tasks later, one after the other.
class Executor {
public:
    virtual ~Executor() = default;

    /// Queues `task` behind those already queued and returns at once; it never runs before this call has returned.
    /// Threads: any.
    virtual void post(Task task) = 0;
};

} // namespace tocca
