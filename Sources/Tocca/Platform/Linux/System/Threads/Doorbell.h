#pragma once

#include <atomic>
#include <cstdint>

namespace tocca::platform::linux {

/// Lets one thread sleep until another has something for it; ringing costs a system call only while it sleeps.
///
/// Threads: `ring`: any. `sleepUnless`: the one thread that sleeps.
/// Real-time: `ring` never allocates, locks or waits.
class Doorbell {
public:
    void ring() noexcept
    {
        if (state_.exchange(kAwake, std::memory_order_acq_rel) == kAsleep) {
            state_.notify_one();
        }
    }

    /// Sleeps until the next ring, unless `hasWork` finds that there is something to do already.
    template <class HasWork>
    void sleepUnless(HasWork hasWork) noexcept
    {
        // The exchanges on both sides order the work before the ring: either this thread sees the work, or the other one
        // sees that this thread is about to sleep.
        state_.exchange(kAsleep, std::memory_order_acq_rel);
        if (!hasWork()) {
            state_.wait(kAsleep, std::memory_order_acquire);
        }
        state_.exchange(kAwake, std::memory_order_acq_rel);
    }

private:
    static constexpr std::uint32_t kAwake = 0;
    static constexpr std::uint32_t kAsleep = 1;

    std::atomic<std::uint32_t> state_{kAwake}; // both; of the size on which the kernel waits
};

static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

} // namespace tocca::platform::linux
