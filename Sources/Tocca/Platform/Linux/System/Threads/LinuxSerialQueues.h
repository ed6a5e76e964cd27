#pragma once

#include "Platform/Linux/System/Threads/Scheduling.h"
#include "Platform/SerialQueue.h"

#include <memory>

namespace tocca::platform::linux {

/// Serial queues, each with a thread of its own and room for 1,024 tasks.
class LinuxSerialQueues : public SerialQueues {
public:
    /// `appeal` is asked on behalf of every user-interactive queue to which the kernel grants no priority; it may be empty.
    explicit LinuxSerialQueues(SchedulingAppeal appeal = {});

    [[nodiscard]] std::unique_ptr<SerialQueue> make(const SerialQueueOptions& options) override;

private:
    SchedulingAppeal appeal_;
};

} // namespace tocca::platform::linux
