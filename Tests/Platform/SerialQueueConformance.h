#pragma once

#include "Platform/SerialQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <vector>

namespace tocca::platform {

/// What every implementation of `SerialQueues` keeps to.
///
/// `Machine` is default constructible, hands out `serialQueues()`, and its `runUntil(predicate)` lets the machine go on until
/// the predicate holds, or returns false after a deadline. Tasks here never wait, since a machine may have one real thread.
template <class Machine>
class SerialQueueConformance : public ::testing::Test {
protected:
    std::unique_ptr<SerialQueue> make()
    {
        return machine_.serialQueues().make({.label = "conformance", .role = ThreadRole::AudioQueue});
    }

    Machine machine_;
};

TYPED_TEST_SUITE_P(SerialQueueConformance);

TYPED_TEST_P(SerialQueueConformance, RunsTasksInPostingOrderUnderTheRoleItWasMadeFor)
{
    constexpr int kTasks = 500;
    std::vector<int> order;
    std::atomic<int> inRole{0};
    std::atomic<int> ran{0};
    const auto queue = this->make();
    for (int i = 0; i < kTasks; ++i) {
        queue->post([&, i] {
            order.push_back(i);
            inRole += threadRole() == ThreadRole::AudioQueue ? 1 : 0;
            ++ran;
        });
    }
    ASSERT_TRUE(this->machine_.runUntil([&] { return ran == kTasks; }));
    for (int i = 0; i < kTasks; ++i) {
        EXPECT_EQ(order.at(static_cast<std::size_t>(i)), i);
    }
    EXPECT_EQ(inRole, kTasks);
}

TYPED_TEST_P(SerialQueueConformance, RunsATaskPostedByATaskAfterItHasEnded)
{
    std::atomic<bool> isOuterRunning{false};
    std::atomic<int> nested{0};
    std::atomic<int> overlaps{0};
    std::atomic<bool> isDone{false};
    const auto queue = this->make();
    queue->post([&] {
        isOuterRunning = true;
        queue->post([&] {
            ++nested;
            overlaps += isOuterRunning ? 1 : 0;
            queue->post([&] { isDone = true; });
        });
        isOuterRunning = false;
    });
    ASSERT_TRUE(this->machine_.runUntil([&] { return isDone.load(); }));
    EXPECT_EQ(nested, 1);
    EXPECT_EQ(overlaps, 0);
}

TYPED_TEST_P(SerialQueueConformance, GivesUpTheOldestTasksUnderOverload)
{
    constexpr int kTasks = 20000;
    std::atomic<int> last{-1};
    std::atomic<int> outOfOrder{0};
    const auto queue = this->make();
    for (int i = 0; i < kTasks; ++i) {
        queue->post([&, i] {
            outOfOrder += i <= last ? 1 : 0;
            last = i; // ends the wait below
        });
    }
    ASSERT_TRUE(this->machine_.runUntil([&] { return last == kTasks - 1; })) << "the newest task never ran";
    EXPECT_EQ(outOfOrder, 0);
}

TYPED_TEST_P(SerialQueueConformance, RunsNothingAfterDestructionAndReleasesWhatTasksHold)
{
    constexpr int kTasks = 100;
    const auto held = std::make_shared<int>();
    std::atomic<int> ran{0};
    auto queue = this->make();
    for (int i = 0; i < kTasks; ++i) {
        queue->post([&ran, held] { ++ran; });
    }
    queue.reset();
    const int ranBefore = ran;
    EXPECT_EQ(held.use_count(), 1);

    std::atomic<bool> hasOtherRun{false};
    const auto other = this->make();
    other->post([&] { hasOtherRun = true; });
    ASSERT_TRUE(this->machine_.runUntil([&] { return hasOtherRun.load(); }));
    EXPECT_EQ(ran, ranBefore);
}

REGISTER_TYPED_TEST_SUITE_P(SerialQueueConformance, RunsTasksInPostingOrderUnderTheRoleItWasMadeFor,
                            RunsATaskPostedByATaskAfterItHasEnded, GivesUpTheOldestTasksUnderOverload,
                            RunsNothingAfterDestructionAndReleasesWhatTasksHold);

} // namespace tocca::platform
