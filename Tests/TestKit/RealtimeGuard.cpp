#include "TestKit/RealtimeGuard.h"

#include "TestKit/RealtimeCounters.h"

namespace tocca::testkit {

namespace {

constinit thread_local RealtimeViolations counts;
constinit thread_local int depth = 0;

} // namespace

RealtimeGuard::RealtimeGuard() noexcept
    : before_(counts)
{
    ++depth;
}

RealtimeGuard::~RealtimeGuard()
{
    --depth;
}

RealtimeViolations RealtimeGuard::violations() const noexcept
{
    return {.allocations = counts.allocations - before_.allocations,
            .releases = counts.releases - before_.releases,
            .locks = counts.locks - before_.locks};
}

void noteAllocation() noexcept
{
    counts.allocations += depth > 0 ? 1 : 0;
}

void noteRelease() noexcept
{
    counts.releases += depth > 0 ? 1 : 0;
}

void noteLock() noexcept
{
    counts.locks += depth > 0 ? 1 : 0;
}

} // namespace tocca::testkit
