#include "TestKit/RealtimeCounters.h"
#include "TestKit/RealtimeGuard.h"

#include <dlfcn.h>
#include <pthread.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>

// The C library's own entry points, which keep working when the public names are taken.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-redundant-declaration)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}

// NOLINTEND(bugprone-reserved-identifier,readability-redundant-declaration)

namespace {

using MutexLock = int (*)(pthread_mutex_t*);

MutexLock realMutexLock() noexcept
{
    // Not a guarded static: its guard might lock.
    static constinit MutexLock lock = nullptr;
    if (lock == nullptr) {
        lock = reinterpret_cast<MutexLock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    }
    return lock;
}

} // namespace

// `operator new` and `operator delete` of the standard library end up here as well.
extern "C" {

void* malloc(std::size_t size)
{
    tocca::testkit::noteAllocation();
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    tocca::testkit::noteAllocation();
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    tocca::testkit::noteAllocation();
    return __libc_realloc(memory, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    tocca::testkit::noteAllocation();
    return __libc_memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size)
{
    tocca::testkit::noteAllocation();
    *memory = __libc_memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}

void free(void* memory)
{
    if (memory != nullptr) {
        tocca::testkit::noteRelease();
    }
    __libc_free(memory);
}

int pthread_mutex_lock(pthread_mutex_t* mutex)
{
    tocca::testkit::noteLock();
    return realMutexLock()(mutex);
}
}

namespace tocca::testkit {

bool RealtimeGuard::seesLocks() noexcept
{
    return true;
}

} // namespace tocca::testkit
