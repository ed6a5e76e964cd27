#include "Platform/Linux/System/Threads/LinuxMainQueue.h"

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kRealtimeCapacity = 1024;
constexpr int kMostPerTurn = 64;

} // namespace

LinuxMainQueue::LinuxMainQueue(LinuxTimers& timers)
    : timers_(timers)
    , realtime_(kRealtimeCapacity)
{}

void LinuxMainQueue::post(Task task)
{
    {
        const std::lock_guard lock(mutex_);
        ordinary_.push_back(std::move(task));
    }
    ring();
}

void LinuxMainQueue::postRealtime(Task task) noexcept
{
    realtime_.pushDroppingOldest(std::move(task));
    ring();
}

void LinuxMainQueue::postAfter(double seconds, Task task)
{
    timers_.callAfter(seconds, std::move(task));
}

void LinuxMainQueue::runReady()
{
    // The descriptor stays readable until the queue is empty, so that an event loop nested in a task runs the tasks behind it.
    for (int count = 0; count < kMostPerTurn; ++count) {
        Task task;
        if (!take(task)) {
            wake_.drain();
            isRung_.exchange(false, std::memory_order_acq_rel);
            if (!take(task)) {
                return;
            }
            ring(); // a task was posted in between, by a thread that found the bell rung and left it so
        }
        task();
    }
}

bool LinuxMainQueue::take(Task& task)
{
    if (realtime_.tryPop(task)) {
        return true;
    }
    const std::lock_guard lock(mutex_);
    if (ordinary_.empty()) {
        return false;
    }
    task = std::move(ordinary_.front());
    ordinary_.pop_front();
    return true;
}

void LinuxMainQueue::ring() noexcept
{
    if (!isRung_.exchange(true, std::memory_order_acq_rel)) {
        wake_.wake();
    }
}

} // namespace tocca::platform::linux
