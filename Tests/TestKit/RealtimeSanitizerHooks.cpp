#include "TestKit/RealtimeCounters.h"
#include "TestKit/RealtimeGuard.h"

#include <cstddef>

// Debian's compiler comes without the header that declares it.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onAllocation)(const volatile void*,
                                                                              std::size_t),
                                                         void (*onRelease)(const volatile void*));

namespace tocca::testkit {

namespace {

void onAllocation(const volatile void* /*memory*/, std::size_t /*size*/)
{
    noteAllocation();
}

void onRelease(const volatile void* memory)
{
    if (memory != nullptr) {
        noteRelease();
    }
}

const int kInstalled = __sanitizer_install_malloc_and_free_hooks(&onAllocation, &onRelease);

} // namespace

bool RealtimeGuard::seesLocks() noexcept
{
    static_cast<void>(kInstalled);
    return false;
}

} // namespace tocca::testkit
