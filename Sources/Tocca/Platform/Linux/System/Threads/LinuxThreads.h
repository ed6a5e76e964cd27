#pragma once

#include "Platform/Linux/System/Threads/Scheduling.h"
#include "Platform/Threads.h"

#include <memory>

namespace tocca::platform::linux {

/// Threads of the operating system, each with a `RunLoop`.
class LinuxThreads : public Threads {
public:
    /// `appeal` is asked on behalf of every user-interactive thread to which the kernel grants no priority; it may be empty.
    explicit LinuxThreads(SchedulingAppeal appeal = {});

    [[nodiscard]] std::unique_ptr<Thread> start(const ThreadOptions& options, Task body) override;

private:
    SchedulingAppeal appeal_;
};

} // namespace tocca::platform::linux
