#pragma once

#include <atomic>
#include <functional>

namespace tocca::platform::linux {

/// Decides, from when the last stroke was, whether the output is kept awake (the gate is open) or released (closed).
///
/// The gate begins open. A stroke that comes while it closes opens it again.
/// Units: seconds of the monotonic clock.
class ActivityGate {
public:
    /// `wake` is called when a stroke meets a closed gate, on the stroke's thread, once per closing; it must not wait.
    ActivityGate(double idleSeconds, std::function<void()> wake);

    /// Tells of a stroke. Threads: any. Never allocates, locks or waits; costs one reading of the clock while open.
    void note() noexcept;

    /// Closes the gate when the last stroke is `idleSeconds` old, and returns whether it did. Threads: control.
    [[nodiscard]] bool closeIfIdle(double now);

    /// Opens the gate and starts a new idle time. Threads: control.
    void open(double now);

    /// Threads: any.
    [[nodiscard]] bool isOpen() const noexcept { return isOpen_.load(); }

private:
    const double idleSeconds_;
    const std::function<void()> wake_;
    std::atomic<double> lastActivity_; // stroke -> control
    std::atomic<bool> isOpen_{true};   // control -> stroke
    std::atomic<bool> isWaking_{false};
};

static_assert(std::atomic<double>::is_always_lock_free);

} // namespace tocca::platform::linux
