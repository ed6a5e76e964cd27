#pragma once

#include <cstdint>

namespace tocca::testkit {

/// What a guarded scope has done that a real-time thread must not do.
struct RealtimeViolations {
    std::uint64_t allocations = 0; ///< calls of malloc and its kin, `operator new` included
    std::uint64_t releases = 0;    ///< calls of free with memory to free, `operator delete` included
    std::uint64_t locks = 0;       ///< calls of pthread_mutex_lock; see `RealtimeGuard::seesLocks`

    [[nodiscard]] std::uint64_t total() const noexcept { return allocations + releases + locks; }
};

/// Counts what the calling thread allocates, frees and locks during a scope.
///
/// Linking the library replaces malloc, calloc, realloc, aligned_alloc, posix_memalign, free and pthread_mutex_lock for the
/// whole program, its shared libraries included. Where a sanitizer already stands in their place, its own allocation
/// hooks are used, and locks are not seen.
/// Threads: any; each counts for itself. Scopes may be nested: an inner one's violations are the outer one's as well.
class RealtimeGuard {
public:
    RealtimeGuard() noexcept;
    ~RealtimeGuard();

    RealtimeGuard(const RealtimeGuard&) = delete;
    RealtimeGuard& operator=(const RealtimeGuard&) = delete;

    /// What has happened since construction.
    [[nodiscard]] RealtimeViolations violations() const noexcept;

    [[nodiscard]] static bool seesLocks() noexcept;

private:
    RealtimeViolations before_;
};

} // namespace tocca::testkit
