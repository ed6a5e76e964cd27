#include "Support/BoundedQueue.h"
#include "Support/SpscRing.h"
#include "Support/Task.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <numeric>
#include <thread>
#include <vector>

namespace tocca {
namespace {

/// Wider than a cache line, so that a torn hand-over shows.
struct Wide {
    std::array<std::uint64_t, 12> words{};

    static Wide of(std::uint64_t value)
    {
        Wide wide;
        wide.words.fill(value);
        return wide;
    }

    [[nodiscard]] bool isWhole() const
    {
        return std::all_of(words.begin(), words.end(), [this](auto word) { return word == words[0]; });
    }
};

TEST(Task, MovesItsCapturesAndDestroysThemOnce)
{
    auto counter = std::make_shared<int>(0);
    {
        Task first = [counter, boxed = std::make_unique<int>(3)] { *counter += *boxed; };
        Task second = std::move(first);
        EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move)
        second();
        second = Task([counter] { *counter += 10; });
        second();
        EXPECT_EQ(counter.use_count(), 2);
    }
    EXPECT_EQ(*counter, 13);
    EXPECT_EQ(counter.use_count(), 1);
}

TEST(BoundedQueue, DropsItsOldestItemsWhenItIsFull)
{
    BoundedQueue<int> queue(4);
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(queue.pushDroppingOldest(i), i > 4 ? 1 : 0);
    }
    int refused = 7;
    EXPECT_FALSE(queue.tryPush(refused));
    std::vector<int> rest;
    for (int item = 0; queue.tryPop(item);) {
        rest.push_back(item);
    }
    EXPECT_EQ(rest, (std::vector{3, 4, 5, 6}));
}

TEST(BoundedQueue, LosesNothingBetweenSeveralPushersAndAPopperButWhatItTells)
{
    constexpr std::uint64_t kEach = 20'000;
    BoundedQueue<Wide> queue(64);
    std::atomic<int> pushing{2};
    std::atomic<int> lost{0};
    const auto push = [&](std::uint64_t lane) {
        for (std::uint64_t i = 0; i < kEach; ++i) {
            lost += queue.pushDroppingOldest(Wide::of(lane << 32U | i));
        }
        --pushing;
    };
    std::thread first(push, 1);
    std::thread second(push, 2);

    std::uint64_t popped = 0;
    std::array<std::uint64_t, 3> last{};
    Wide item;
    for (bool isLastRound = false;;) {
        while (queue.tryPop(item)) {
            ++popped;
            ASSERT_TRUE(item.isWhole());
            auto& lane = last.at(item.words[0] >> 32U);
            ASSERT_GE(item.words[0], lane) << "out of order within a pusher";
            lane = item.words[0];
        }
        if (isLastRound) {
            break;
        }
        isLastRound = pushing == 0;
    }
    first.join();
    second.join();
    EXPECT_EQ(popped + static_cast<std::uint64_t>(lost), 2 * kEach);
}

TEST(SpscRing, HandsEveryItemOverWholeAndInOrder)
{
    constexpr std::uint64_t kCount = 50'000;
    SpscRing<Wide> ring(32);
    std::thread writer([&ring] {
        for (std::uint64_t i = 0; i < kCount;) {
            i += ring.push(Wide::of(i)) ? 1U : 0U;
        }
    });
    for (std::uint64_t expected = 0; expected < kCount;) {
        if (const Wide* item = ring.front()) {
            ASSERT_TRUE(item->isWhole());
            ASSERT_EQ(item->words[0], expected++);
            ring.pop();
        }
    }
    writer.join();
    EXPECT_EQ(ring.size(), 0U);
}

} // namespace
} // namespace tocca
