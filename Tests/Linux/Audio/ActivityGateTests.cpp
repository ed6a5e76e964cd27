#include "Platform/Linux/Audio/PipeWire/ActivityGate.h"

#include "Platform/Linux/System/LinuxClock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <thread>

namespace tocca::platform::linux {
namespace {

constexpr double kIdle = 30.0;

TEST(ActivityGate, ClosesWhenTheLastStrokeIsOldEnoughAndCallsOnceForTheNext)
{
    int wakes = 0;
    ActivityGate gate(kIdle, [&wakes] { ++wakes; });
    const double now = monotonicSeconds();
    gate.note();
    EXPECT_FALSE(gate.closeIfIdle(now + kIdle - 1.0));
    EXPECT_EQ(wakes, 0) << "an open gate needs nobody";

    EXPECT_TRUE(gate.closeIfIdle(now + kIdle + 5.0));
    EXPECT_FALSE(gate.isOpen());
    EXPECT_FALSE(gate.closeIfIdle(now + kIdle + 6.0)) << "it is closed already";
    gate.note();
    gate.note();
    EXPECT_EQ(wakes, 1);

    gate.open(now + kIdle + 7.0);
    EXPECT_FALSE(gate.closeIfIdle(now + kIdle + 8.0)) << "opening starts a new idle time";
    EXPECT_TRUE(gate.closeIfIdle(now + 3 * kIdle));
    gate.note();
    EXPECT_EQ(wakes, 2);
}

TEST(ActivityGate, NeverStaysClosedBehindAStrokeThatMeetsTheClosing)
{
    constexpr int kRounds = 20'000;
    std::atomic<bool> isCalled{false};
    ActivityGate gate(0.0, [&isCalled] { isCalled = true; });
    std::barrier together(2);
    double playedAt = 0.0;
    std::thread player([&] {
        for (int i = 0; i < kRounds; ++i) {
            together.arrive_and_wait();
            playedAt = monotonicSeconds();
            gate.note();
            together.arrive_and_wait();
        }
    });
    int deaf = 0;
    for (int i = 0; i < kRounds; ++i) {
        isCalled = false;
        gate.open(monotonicSeconds());
        together.arrive_and_wait();
        const double closedAt = monotonicSeconds();
        (void)gate.closeIfIdle(closedAt);
        together.arrive_and_wait();
        deaf += !gate.isOpen() && !isCalled && playedAt > closedAt ? 1 : 0;
    }
    player.join();
    EXPECT_EQ(deaf, 0);
}

} // namespace
} // namespace tocca::platform::linux
