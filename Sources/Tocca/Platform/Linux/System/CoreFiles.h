#pragma once

#include <sys/resource.h>

namespace tocca::platform::linux {

/// Lets no core file be written when the process comes to a bad end: its memory is nobody's to keep. Debuggers and portals may still look
/// at the process. Threads: any.
inline void forbidCoreFiles() noexcept
{
    constexpr rlimit kNone{.rlim_cur = 0, .rlim_max = 0};
    (void)::setrlimit(RLIMIT_CORE, &kNone);
}

} // namespace tocca::platform::linux
