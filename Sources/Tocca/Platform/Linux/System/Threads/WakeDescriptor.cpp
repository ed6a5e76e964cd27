#include "Platform/Linux/System/Threads/WakeDescriptor.h"

#include <cstdio>
#include <cstdlib>

#include <sys/eventfd.h>

namespace tocca::platform::linux {

WakeDescriptor::WakeDescriptor()
    : descriptor_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (!descriptor_.isOpen()) {
        std::perror("eventfd");
        std::abort();
    }
}

void WakeDescriptor::wake() noexcept
{
    // Fails only when the counter is at its limit, and then the descriptor is readable already.
    ::eventfd_write(descriptor_.get(), 1);
}

void WakeDescriptor::drain() noexcept
{
    eventfd_t count = 0;
    ::eventfd_read(descriptor_.get(), &count);
}

} // namespace tocca::platform::linux
