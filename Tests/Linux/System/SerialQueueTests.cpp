#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

namespace tocca::platform::linux {

namespace {

TEST(LinuxSerialQueue, KeepsEachPostersOrderAndLosesNothingBelowItsCapacity)
{
    constexpr std::size_t kPosters = 4;
    constexpr int kRounds = 200;
    constexpr int kPerRound = 200; // all posters together stay below the capacity
    LinuxSerialQueues queues;
    const auto queue = queues.make({.label = "stress"});
    std::array<int, kPosters> next{};
    std::atomic<int> outOfOrder{0};
    std::atomic<int> ran{0};
    for (int round = 0; round < kRounds; ++round) {
        std::vector<std::thread> posters;
        for (std::size_t poster = 0; poster < kPosters; ++poster) {
            posters.emplace_back([&, poster] {
                for (int i = 0; i < kPerRound; ++i) {
                    queue->post([&, poster, value = round * kPerRound + i] {
                        outOfOrder += value == next.at(poster)++ ? 0 : 1;
                        ++ran;
                        ran.notify_all();
                    });
                }
            });
        }
        for (auto& poster : posters) {
            poster.join();
        }
        const int expected = static_cast<int>(kPosters) * kPerRound * (round + 1);
        for (int seen = ran; seen != expected; seen = ran) {
            ran.wait(seen); // for ever if a wake-up was lost
        }
    }
    EXPECT_EQ(outOfOrder, 0);
}

TEST(LinuxSerialQueue, WakesForEverySingleTask)
{
    constexpr int kTasks = 20000;
    LinuxSerialQueues queues;
    const auto queue = queues.make({.label = "ping"});
    std::atomic<int> ran{0};
    for (int i = 0; i < kTasks; ++i) {
        queue->post([&ran] {
            ++ran;
            ran.notify_all();
        });
        ran.wait(i); // the queue is about to sleep just when the next task comes
    }
    EXPECT_EQ(ran, kTasks);
}

TEST(LinuxSerialQueue, DestructionWaitsForTheRunningTask)
{
    LinuxSerialQueues queues;
    auto queue = queues.make({.label = "ending"});
    std::atomic<bool> isRunning{false};
    std::atomic<bool> mayEnd{false};
    std::atomic<bool> hasEnded{false};
    queue->post([&] {
        isRunning = true;
        isRunning.notify_all();
        mayEnd.wait(false);
        hasEnded = true;
    });
    isRunning.wait(false);
    std::thread releaser([&] {
        std::this_thread::yield();
        mayEnd = true;
        mayEnd.notify_all();
    });
    queue.reset();
    EXPECT_TRUE(hasEnded);
    releaser.join();
}

} // namespace

} // namespace tocca::platform::linux
