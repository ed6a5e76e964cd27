#include "TestKit/RealtimeGuard.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tocca::testkit {
namespace {

// What escapes through here cannot be optimised away.
void* volatile escape = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

TEST(RealtimeGuard, SeesWhatItsOwnThreadAllocatesFreesAndLocks)
{
    std::mutex mutex;
    auto existing = std::make_unique<std::vector<int>>(100);

    const RealtimeGuard guard;
    EXPECT_EQ(guard.violations().total(), 0U);

    const auto made = std::make_unique<int>(1);
    escape = made.get();
    EXPECT_EQ(guard.violations().allocations, 1U);

    existing->reserve(1000);
    EXPECT_EQ(guard.violations().allocations, 2U);
    EXPECT_EQ(guard.violations().releases, 1U);

    escape = std::malloc(64);
    std::free(escape);
    EXPECT_EQ(guard.violations().allocations, 3U);
    EXPECT_EQ(guard.violations().releases, 2U);

    if (RealtimeGuard::seesLocks()) {
        const std::lock_guard lock(mutex);
        EXPECT_EQ(guard.violations().locks, 1U);
    }
}

TEST(RealtimeGuard, CountsNeitherOtherThreadsNorWhatComesBeforeIt)
{
    const auto before = std::make_unique<int>(1);
    RealtimeViolations ofOther;
    std::thread other([&ofOther] {
        const auto unguarded = std::make_unique<int>(2);
        const RealtimeGuard guard;
        ofOther = guard.violations();
    });
    const RealtimeGuard guard;
    other.join();

    EXPECT_EQ(ofOther.total(), 0U);
    EXPECT_EQ(guard.violations().allocations, 0U);
}

} // namespace
} // namespace tocca::testkit
