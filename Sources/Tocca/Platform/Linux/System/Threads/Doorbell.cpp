#include "Platform/Linux/System/Threads/Doorbell.h"

#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tocca::platform::linux {

// Not std::atomic::wait, which yields the processor before it sleeps: on a busy computer a ring in that moment waits for a turn.
// The kernel waits on the word itself.
static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t));

void Doorbell::ring() noexcept
{
    if (state_.exchange(kAwake, std::memory_order_acq_rel) == kAsleep) {
        ::syscall(SYS_futex, &state_, FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0);
    }
}

void Doorbell::waitWhileAsleep() noexcept
{
    // Signals and stray wake-ups end the call early.
    while (state_.load(std::memory_order_acquire) == kAsleep) {
        ::syscall(SYS_futex, &state_, FUTEX_WAIT_PRIVATE, kAsleep, nullptr, nullptr, 0);
    }
}

} // namespace tocca::platform::linux
