#include "TestKit/RealtimeGuard.h"
#include "TestKit/StrokePath.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tocca {
namespace {

TEST(StrokePath, NeitherAllocatesNorLocksOnTheCaptureThreadAndArrivesWhole)
{
    constexpr std::uint16_t kKeys = 100; // fewer than a queue holds, so that none may be dropped
    testkit::StrokePath path;
    testkit::RealtimeViolations violations;
    std::atomic<bool> isOver{false};
    std::thread capture([&] {
        setThreadRole(ThreadRole::Capture);
        const testkit::RealtimeGuard guard;
        for (std::uint16_t key = 0; key < kKeys; ++key) {
            path.strike(key);
        }
        violations = guard.violations();
        isOver = true;
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    const auto isDone = [&] {
        return isOver && path.players().played() == kKeys && path.monitor().keystrokeCount.get() == kKeys;
    };
    while (!isDone() && std::chrono::steady_clock::now() < deadline) {
        path.serveMain(10);
    }
    capture.join();
    EXPECT_EQ(violations.total(), 0U);
    EXPECT_EQ(path.players().played(), kKeys);
    EXPECT_EQ(path.monitor().keystrokeCount.get(), kKeys);
}

} // namespace
} // namespace tocca
