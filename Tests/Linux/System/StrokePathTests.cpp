#include "Instruments/StrokePath.h"
#include "TestKit/RealtimeGuard.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tocca {
namespace {

/// Strikes the keys from `first` to before `last` on a capture thread, and returns what that thread may not do and did.
testkit::RealtimeViolations strike(instruments::StrokePath& path, std::uint16_t first, std::uint16_t last)
{
    setThreadRole(ThreadRole::Capture);
    const testkit::RealtimeGuard guard;
    for (std::uint16_t key = first; key < last; ++key) {
        path.strike(key);
    }
    return guard.violations();
}

TEST(StrokePath, NeitherAllocatesNorLocksOnTheCaptureThreadAndArrivesWhole)
{
    constexpr std::uint16_t kKeys = 100; // fewer than a queue holds, so that none may be dropped
    constexpr std::uint16_t kAll = 3000; // more than the queues hold while nobody serves them
    instruments::StrokePath path;
    testkit::RealtimeViolations violations;
    std::thread capture([&] { violations = strike(path, 0, kKeys); });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    const auto isDone = [&] {
        return path.players().played() == kKeys && path.monitor().keystrokeCount.get() == kKeys;
    };
    while (!isDone() && std::chrono::steady_clock::now() < deadline) {
        path.serveMain(10);
    }
    capture.join();
    EXPECT_EQ(violations.total(), 0U);
    EXPECT_EQ(path.players().played(), kKeys);
    EXPECT_EQ(path.monitor().keystrokeCount.get(), kKeys);

    capture = std::thread([&] { violations = strike(path, kKeys, kAll); });
    capture.join();
    EXPECT_EQ(violations.total(), 0U) << "with queues that overflow";
}

} // namespace
} // namespace tocca
