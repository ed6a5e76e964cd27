#pragma once

#include "Support/Task.h"
#include "Support/ThreadRole.h"

#include <memory>
#include <string>

namespace tocca::platform {

/// A running thread with an event loop.
///
/// After its body has returned, the thread serves the sources that the body attached, and ends when none is left.
/// Lifetime: destruction stops the thread.
class Thread {
public:
    virtual ~Thread() = default;

    /// Ends the loop after the running callback and waits until the thread is gone; a body not yet begun never runs.
    /// Threads: the one that started the thread; calling it again does nothing.
    virtual void stop() = 0;
};

/// What a thread is called and treated like.
struct ThreadOptions {
    std::string name;                   ///< as far as the system keeps it (15 bytes on Linux)
    ThreadRole role = ThreadRole::None; ///< set before the body runs
    bool isUserInteractive = false;     ///< asks the scheduler to run it before ordinary threads
};

/// Starts threads.
class Threads {
public:
    virtual ~Threads() = default;

    /// Starts a thread that runs `body`, perhaps before this call returns: `body` must not use the variable that the caller keeps
    /// the result in. Threads: main.
    [[nodiscard]] virtual std::unique_ptr<Thread> start(const ThreadOptions& options, Task body) = 0;
};

} // namespace tocca::platform
