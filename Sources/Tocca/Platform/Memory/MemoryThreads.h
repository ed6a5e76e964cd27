#pragma once

#include "Platform/Memory/VirtualTime.h"
#include "Platform/Threads.h"

#include <memory>
#include <vector>

namespace tocca::platform::memory {

/// Threads played one after the other on the caller's: a body runs when time is next settled.
class MemoryThreads : public Threads {
public:
    /// A started thread as its sources see it.
    struct State {
        ThreadOptions options;
        Task body;
        int sourceCount = 0;
        bool isStopped = false;
        bool hasBegun = false;
    };

    explicit MemoryThreads(VirtualTime& time);

    [[nodiscard]] std::unique_ptr<Thread> start(const ThreadOptions& options, Task body) override;

    /// The thread whose body is running right now, if any.
    [[nodiscard]] std::shared_ptr<State> current() const noexcept { return current_; }

    /// Every thread started so far.
    [[nodiscard]] const std::vector<std::shared_ptr<State>>& started() const noexcept { return started_; }

    /// How many threads would exist now on a real machine.
    [[nodiscard]] int runningCount() const noexcept;

private:
    class Handle;

    bool runOne();

    std::vector<std::shared_ptr<State>> started_;
    std::shared_ptr<State> current_;
};

} // namespace tocca::platform::memory
