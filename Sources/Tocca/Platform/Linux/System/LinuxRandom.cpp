#include "Platform/Linux/System/LinuxRandom.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <sys/random.h>

namespace tocca::platform::linux {

std::uint64_t LinuxRandom::next()
{
    if (used_ == numbers_.size()) {
        // Up to 256 bytes arrive whole or not at all.
        while (::getrandom(numbers_.data(), sizeof(numbers_), 0) < 0) {
            if (errno != EINTR) {
                std::perror("getrandom");
                std::abort();
            }
        }
        used_ = 0;
    }
    return numbers_[used_++];
}

} // namespace tocca::platform::linux
