#include "Linux/System/PolledMachine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tocca::platform::linux {

namespace {

constexpr double kTick = 0.004; // seconds

TEST(LinuxMainQueue, TakesRealtimeAndOrdinaryTasksFromSeveralThreadsInEachOnesOrder)
{
    constexpr std::size_t kPosters = 4;
    constexpr int kTasks = 3000;
    PolledMachine machine;
    std::array<int, kPosters> realtime{};
    std::array<int, kPosters> ordinary{};
    int outOfOrder = 0;
    std::atomic<int> outstanding{0};
    std::vector<std::thread> posters;
    for (std::size_t poster = 0; poster < kPosters; ++poster) {
        posters.emplace_back([&, poster] {
            for (int i = 0; i < kTasks; ++i) {
                while (outstanding > 500) { // stays below the capacity
                    std::this_thread::yield();
                }
                ++outstanding;
                machine.mainQueue().postRealtime([&, poster, i] {
                    outOfOrder += i == realtime.at(poster)++ ? 0 : 1;
                    --outstanding;
                });
                machine.mainQueue().post(
                    [&, poster, i] { outOfOrder += i == ordinary.at(poster)++ ? 0 : 1; });
            }
        });
    }
    const std::array<int, kPosters> all{kTasks, kTasks, kTasks, kTasks};
    EXPECT_TRUE(machine.runUntil([&] { return realtime == all && ordinary == all; }));
    for (auto& poster : posters) {
        poster.join();
    }
    EXPECT_EQ(outOfOrder, 0);
}

TEST(LinuxMainQueue, DropsItsOldestRealtimeTasksWhenTheMainThreadLagsBehind)
{
    constexpr int kTasks = 3000;
    LinuxTimers timers;
    LinuxMainQueue queue(timers);
    int ran = 0;
    int last = -1;
    for (int i = 0; i < kTasks; ++i) {
        queue.postRealtime([&, i] {
            ++ran;
            last = i;
        });
    }
    while (last != kTasks - 1) {
        queue.runReady();
    }
    EXPECT_EQ(ran, 1024);
}

TEST(LinuxMainQueue, GoesOnInsideALoopThatATaskRuns)
{
    PolledMachine machine;
    std::string order;
    machine.mainQueue().post([&] {
        order += '(';
        EXPECT_TRUE(machine.runUntil([&] { return order.ends_with("cd"); }));
        order += ')';
    });
    machine.mainQueue().post([&] { order += 'b'; });
    machine.mainQueue().post([&] {
        order += 'c';
        machine.mainQueue().post([&] { order += 'd'; });
    });
    ASSERT_TRUE(machine.runUntil([&] { return order.ends_with(')'); }));
    machine.mainQueue().post([&] { order += 'e'; });
    ASSERT_TRUE(machine.runUntil([&] { return order.ends_with('e'); }));
    EXPECT_EQ(order, "(bcd)e");
}

TEST(LinuxMainQueue, LeavesRoomForOthersAndThenSleeps)
{
    PolledMachine machine;
    bool isOver = false;
    int rounds = 0;
    std::function<void()> again = [&] {
        ++rounds;
        if (!isOver) {
            machine.mainQueue().post(again);
        }
    };
    machine.mainQueue().post(again);
    ASSERT_TRUE(machine.turn(0)) << "for ever inside one turn";
    EXPECT_GT(rounds, 1);
    isOver = true;
    const int roundsBefore = rounds;
    ASSERT_TRUE(machine.runUntil([&] { return rounds > roundsBefore; }));
    while (machine.turn(0)) {
    }
    EXPECT_FALSE(machine.turn(20)) << "woken with nothing to do";
}

TEST(LinuxTimers, SkipTicksMissedWithoutLeavingTheGrid)
{
    PolledMachine machine;
    const Clock& clock = machine.clock();
    const double start = clock.now();
    std::vector<double> ticks;
    const auto timer = machine.timers().scheduleRepeating(kTick, [&] {
        ticks.push_back(clock.now());
        while (ticks.size() == 1 && clock.now() < start + 4.5 * kTick) { // the main thread is busy
        }
    });
    ASSERT_TRUE(machine.runUntil([&] { return ticks.size() == 2; }));
    EXPECT_GE(ticks[1], start + 5 * kTick) << "made up for a tick it had missed";
}

TEST(LinuxTimers, KeepGoingInsideALoopThatATickRunsButDoNotInterruptThemselves)
{
    PolledMachine machine;
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    int others = 0;
    const auto other = machine.timers().scheduleRepeating(kTick, [&] { ++others; });
    auto timer = machine.timers().scheduleRepeating(kTick, [&] {
        deepest = std::max(deepest, ++depth);
        ++ticks;
        const int before = others;
        EXPECT_TRUE(machine.runUntil([&] { return others >= before + 3; }));
        --depth;
    });
    ASSERT_TRUE(machine.runUntil([&] { return ticks == 3; }));
    EXPECT_EQ(deepest, 1);
}

TEST(LinuxTimers, WakeTheMainThreadForNothingButTheirCalls)
{
    PolledMachine machine;
    int ticks = 0;
    auto timer = machine.timers().scheduleRepeating(kTick, [&] { ++ticks; });
    auto never = machine.timers().scheduleOnce(kTick / 2, [] {});
    never.reset();
    for (int wakes = 1; wakes <= 5; ++wakes) {
        ASSERT_TRUE(machine.turn(1000));
        EXPECT_EQ(ticks, wakes);
    }
    timer.reset();
    EXPECT_FALSE(machine.turn(20)) << "woken by a timer that is gone";
}

TEST(LinuxTimers, MayEndBeforeTheTokensAndInsideACall)
{
    auto timers = std::make_unique<LinuxTimers>();
    auto token = timers->scheduleRepeating(kTick, [] {});
    bool hasFired = false;
    const auto ending = timers->scheduleOnce(0.0, [&] {
        timers.reset();
        hasFired = true;
    });
    timers->runDue();
    EXPECT_TRUE(hasFired);
    token.reset();
}

} // namespace

} // namespace tocca::platform::linux
