#pragma once

#include "Platform/Linux/System/FileDescriptor.h"

namespace tocca::platform::linux {

/// A descriptor that any thread can make readable, and so end another thread's `poll`.
///
/// Threads: `wake`: any. `drain`: the thread that polls.
/// Errors: aborts when the process has no descriptor left.
class WakeDescriptor {
public:
    WakeDescriptor();

    /// Makes the descriptor readable until it is drained. Real-time: one system call that never waits.
    void wake() noexcept;

    void drain() noexcept;

    [[nodiscard]] int fd() const noexcept { return descriptor_.get(); }

private:
    FileDescriptor descriptor_;
};

} // namespace tocca::platform::linux
