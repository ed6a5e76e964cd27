#pragma once

#include "Platform/Linux/System/Threads/Scheduling.h"
#include "Platform/SerialQueue.h"

#include <memory>

namespace tocca::platform::linux {

/// Serial queues with a thread each and room for 1,024 tasks.
class LinuxSerialQueues : public SerialQueues {
public:
    /// `appeal` is asked for every user-interactive queue that the kernel refuses; it may be empty.
    explicit LinuxSerialQueues(SchedulingAppeal appeal = {});

    [[nodiscard]] std::unique_ptr<SerialQueue> make(const SerialQueueOptions& options) override;

private:
    SchedulingAppeal appeal_;
};

} // namespace tocca::platform::linux
