#pragma once

#include "Support/Executor.h"
#include "Support/ThreadRole.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tocca::platform {

/// One thread that runs tasks in posting order.
///
/// Real-time: `post` never allocates, locks or waits; a full queue drops its oldest task and counts it.
/// Lifetime: destruction waits for the running task and drops the others. Never destroy a queue from its own task.
class SerialQueue : public Executor {
public:
    /// How many tasks were dropped because the queue was full. Threads: any.
    [[nodiscard]] virtual std::uint64_t dropped() const noexcept = 0;
};

/// What a queue's thread is called and treated like.
struct SerialQueueOptions {
    std::string label;                  ///< also the thread's name, as far as the system keeps it
    ThreadRole role = ThreadRole::None; ///< set on the queue's thread
    bool isUserInteractive = false;     ///< asks the scheduler to run it before ordinary threads
};

class SerialQueues {
public:
    virtual ~SerialQueues() = default;

    /// Makes a queue and its thread. Threads: main.
    [[nodiscard]] virtual std::unique_ptr<SerialQueue> make(const SerialQueueOptions& options) = 0;
};

} // namespace tocca::platform
