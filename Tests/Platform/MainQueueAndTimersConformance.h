#pragma once

#include "Platform/Clock.h"
#include "Platform/MainQueue.h"
#include "Platform/Timers.h"
#include "Support/ThreadRole.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tocca::platform {

/// What every implementation of `MainQueue` and `Timers` keeps to.
///
/// `Machine` is default constructible, hands out `mainQueue()`, `timers()` and `clock()`, and its `runUntil(predicate)` runs
/// the main thread until the predicate holds, or returns false after a deadline.
template <class Machine>
class MainQueueAndTimersConformance : public ::testing::Test {
protected:
    static constexpr double kTick = 0.004;    // seconds
    static constexpr double kRounding = 1e-9; // seconds; what sums of doubles may be off by

    /// Runs long enough for anything due within `seconds` to have happened.
    [[nodiscard]] bool pass(double seconds)
    {
        bool isOver = false;
        machine_.mainQueue().postAfter(seconds, [&isOver] { isOver = true; });
        return machine_.runUntil([&isOver] { return isOver; });
    }

    ThreadRoleScope main_{ThreadRole::Main};
    Machine machine_;
};

TYPED_TEST_SUITE_P(MainQueueAndTimersConformance);

TYPED_TEST_P(MainQueueAndTimersConformance, RunsPostedTasksLaterAndInOrder)
{
    MainQueue& queue = this->machine_.mainQueue();
    std::string order;
    queue.post([&] {
        order += 'a';
        queue.post([&] { order += 'c'; });
        order += 'A';
    });
    queue.post([&] { order += 'b'; });
    EXPECT_EQ(order, "") << "a task ran before post had returned";
    ASSERT_TRUE(this->machine_.runUntil([&] { return order.size() == 4; }));
    EXPECT_EQ(order, "aAbc");
}

TYPED_TEST_P(MainQueueAndTimersConformance, KeepsTheOrderOfRealtimeTasks)
{
    constexpr int kTasks = 300;
    MainQueue& queue = this->machine_.mainQueue();
    std::vector<int> order;
    bool hasOrdinaryRun = false;
    queue.post([&] { hasOrdinaryRun = true; });
    for (int i = 0; i < kTasks; ++i) {
        queue.postRealtime([&order, i] { order.push_back(i); });
    }
    EXPECT_TRUE(order.empty()) << "a task ran before postRealtime had returned";
    ASSERT_TRUE(this->machine_.runUntil([&] { return order.size() == kTasks && hasOrdinaryRun; }));
    for (int i = 0; i < kTasks; ++i) {
        EXPECT_EQ(order.at(static_cast<std::size_t>(i)), i);
    }
}

TYPED_TEST_P(MainQueueAndTimersConformance, RunsDelayedTasksInOrderOfTheirTimesAndNeverTooSoon)
{
    const Clock& clock = this->machine_.clock();
    const double start = clock.now();
    std::string order;
    bool isTooSoon = false;
    const auto add = [&](double delay, char name) {
        this->machine_.mainQueue().postAfter(delay, [&, delay, name] {
            isTooSoon = isTooSoon || clock.now() < start + delay - TestFixture::kRounding;
            order += name;
        });
    };
    add(3 * TestFixture::kTick, 'd');
    add(TestFixture::kTick, 'b');
    add(TestFixture::kTick, 'c');
    add(0.0, 'a');
    EXPECT_EQ(order, "");
    ASSERT_TRUE(this->machine_.runUntil([&] { return order.size() == 4; }));
    EXPECT_EQ(order, "abcd");
    EXPECT_FALSE(isTooSoon);
}

TYPED_TEST_P(MainQueueAndTimersConformance, RepeatsOnAFixedGridUntilDestroyedInItsOwnCall)
{
    const Clock& clock = this->machine_.clock();
    const double start = clock.now();
    int ticks = 0;
    bool isTooSoon = false;
    std::unique_ptr<Timer> timer;
    timer = this->machine_.timers().scheduleRepeating(TestFixture::kTick, [&] {
        ++ticks;
        isTooSoon = isTooSoon || clock.now() < start + ticks * TestFixture::kTick - TestFixture::kRounding;
        if (ticks == 5) {
            timer.reset();
        }
    });
    EXPECT_EQ(ticks, 0);
    ASSERT_TRUE(this->machine_.runUntil([&] { return ticks == 5; }));
    EXPECT_FALSE(isTooSoon);
    ASSERT_TRUE(this->pass(3 * TestFixture::kTick));
    EXPECT_EQ(ticks, 5) << "a destroyed timer fired";
}

TYPED_TEST_P(MainQueueAndTimersConformance, NeverFiresATimerThatAnotherOneHasDestroyed)
{
    Timers& timers = this->machine_.timers();
    const auto held = std::make_shared<int>();
    int fired = 0;
    std::unique_ptr<Timer> victim;
    // Both are due by the time the first one runs.
    const auto first = timers.scheduleOnce(0.0, [&] { victim.reset(); });
    victim = timers.scheduleOnce(0.0, [&fired, held] { ++fired; });
    ASSERT_TRUE(this->pass(2 * TestFixture::kTick));
    EXPECT_EQ(fired, 0);
    EXPECT_EQ(held.use_count(), 1) << "what the timer held was not released";
}

TYPED_TEST_P(MainQueueAndTimersConformance, FiresASingleShotOnceAndAllowsSchedulingFromItsCall)
{
    Timers& timers = this->machine_.timers();
    int fired = 0;
    int nested = 0;
    bool isInside = false;
    std::unique_ptr<Timer> inner;
    const auto outer = timers.scheduleOnce(0.0, [&] {
        isInside = true;
        ++fired;
        inner = timers.scheduleOnce(0.0, [&] { nested += isInside ? 100 : 1; });
        isInside = false;
    });
    ASSERT_TRUE(this->machine_.runUntil([&] { return nested != 0; }));
    ASSERT_TRUE(this->pass(2 * TestFixture::kTick));
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(nested, 1);
}

REGISTER_TYPED_TEST_SUITE_P(MainQueueAndTimersConformance, RunsPostedTasksLaterAndInOrder,
                            KeepsTheOrderOfRealtimeTasks, RunsDelayedTasksInOrderOfTheirTimesAndNeverTooSoon,
                            RepeatsOnAFixedGridUntilDestroyedInItsOwnCall,
                            NeverFiresATimerThatAnotherOneHasDestroyed,
                            FiresASingleShotOnceAndAllowsSchedulingFromItsCall);

} // namespace tocca::platform
