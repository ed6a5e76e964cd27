#pragma once

#include "Platform/Linux/System/Threads/WakeDescriptor.h"

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

#include <poll.h>

namespace tocca::platform::linux {

class LoopSource;

/// The event loop of a thread: waits for descriptors and calls back when they are readable.
///
/// Threads: `stop`: any. The rest: the loop's own thread.
/// Real-time: a turn of the loop takes no lock and, once every source is attached, allocates nothing.
class RunLoop : public std::enable_shared_from_this<RunLoop> {
public:
    /// The loop of the calling thread, or null when it has none.
    [[nodiscard]] static std::shared_ptr<RunLoop> current();

    /// Calls `ready` whenever `*descriptor` is readable or broken; a negative number is never either.
    ///
    /// The number is read before every wait, so that `ready` may exchange it. Lifetime: `*descriptor` lives as long as the result.
    [[nodiscard]] std::unique_ptr<LoopSource> attach(const int* descriptor, std::function<void()> ready);

    /// Makes this the loop of the calling thread, calls `body`, and serves the attached sources until none is left.
    void run(const std::function<void()>& body);

    /// Ends `run` after the callback that is running; a `body` that has not begun never runs.
    void stop() noexcept;

private:
    friend class LoopSource;

    struct Record {
        const int* descriptor = nullptr; // loop
        std::function<void()> ready;
        std::atomic<bool> isLeaving{false}; // any -> loop
        std::atomic<bool> isGone{false};    // loop -> any
    };

    void serve();
    void waitAndCall();
    void removeLeaving() noexcept;
    void detach(Record& record) noexcept;

    WakeDescriptor wake_;
    std::atomic<bool> isStopping_{false};          // any -> loop
    std::vector<std::shared_ptr<Record>> records_; // loop
    std::vector<pollfd> polled_;                   // loop
};

/// Keeps a callback attached to a loop. The destructor waits for the callback if that is running on another thread.
///
/// Lifetime: may outlive the loop's thread.
class LoopSource {
public:
    LoopSource(std::shared_ptr<RunLoop> loop, std::shared_ptr<RunLoop::Record> record) noexcept;
    LoopSource(const LoopSource&) = delete;
    LoopSource& operator=(const LoopSource&) = delete;
    ~LoopSource();

private:
    std::shared_ptr<RunLoop> loop_;
    std::shared_ptr<RunLoop::Record> record_;
};

} // namespace tocca::platform::linux
