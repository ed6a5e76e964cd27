#pragma once

#include "Support/Realtime.h"

#include <atomic>
#include <cstdint>

namespace tocca::platform::linux {

/// Lets one thread sleep until another rings. Ringing costs a system call only while that thread sleeps.
///
/// Threads: `ring`: any. `sleepUnless`: the one thread that sleeps.
/// Real-time: `ring` never allocates, locks or waits.
class Doorbell {
public:
    void ring() noexcept;

    /// Sleeps until the next ring, unless `hasWork` says that there is something to do already.
    template <class HasWork>
    void sleepUnless(HasWork hasWork) noexcept
    {
        // Because both sides exchange, no work is overlooked: either this thread sees it, or the ringing thread sees this one asleep.
        state_.exchange(kAsleep, std::memory_order_acq_rel);
        if (!hasWork()) {
            waitWhileAsleep();
        }
        state_.exchange(kAwake, std::memory_order_acq_rel);
    }

private:
    static constexpr std::uint32_t kAwake = 0;
    static constexpr std::uint32_t kAsleep = 1;

    void waitWhileAsleep() noexcept;

    std::atomic<std::uint32_t> state_{kAwake}; // both
};

static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

} // namespace tocca::platform::linux
