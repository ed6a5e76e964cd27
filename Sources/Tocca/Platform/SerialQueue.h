#pragma once

#include "Support/Executor.h"
#include "Support/ThreadRole.h"

#include <memory>
#include <string>

namespace tocca::platform {

/// One thread that runs tasks in posting order.
///
/// Real-time: `post` never allocates, locks or waits; a full queue drops its oldest task.
/// Lifetime: destruction waits for the running task and drops the others. Never destroy a queue from its own task.
class SerialQueue : public Executor {};

/// What a queue's thread is called and treated like.
struct SerialQueueOptions {
    std::string label;                  ///< also the thread's name, as far as the system keeps it
    ThreadRole role = ThreadRole::None; ///< set on the queue's thread
    bool isUserInteractive = false;     ///< asks the scheduler to run it before ordinary threads
};

/// Makes serial queues.
class SerialQueues {
public:
    virtual ~SerialQueues() = default;

    /// Makes a queue and its thread. Threads: main.
    [[nodiscard]] virtual std::unique_ptr<SerialQueue> make(const SerialQueueOptions& options) = 0;
};

} // namespace tocca::platform
