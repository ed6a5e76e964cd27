#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"
#include "Platform/Linux/System/Threads/Scheduling.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include <poll.h>

namespace tocca::platform::linux {

namespace {

using Time = std::chrono::steady_clock;

double microseconds(Time::duration duration)
{
    return std::chrono::duration<double, std::micro>(duration).count();
}

/// Adds the median and the 99th percentile of `values` (µs) to the benchmark's line.
void report(benchmark::State& state, const char* median, const char* high, std::vector<double>& values)
{
    constexpr double kHigh = 0.99;
    std::sort(values.begin(), values.end());
    state.counters[median] = values.at(values.size() / 2);
    state.counters[high] =
        values.at(static_cast<std::size_t>(static_cast<double>(values.size() - 1) * kHigh));
}

/// A post to a queue whose thread sleeps: what it costs the poster, and how long the task takes to begin.
///
/// The poster is treated like the queue's thread, as the capture thread is in the program.
void postToSleepingQueue(benchmark::State& state)
{
    constexpr std::chrono::microseconds kUntilAsleep{300};
    const bool isUserInteractive = state.range(0) != 0;
    LinuxSerialQueues queues;
    const auto queue = queues.make({.label = "benchmark", .isUserInteractive = isUserInteractive});
    std::vector<double> costs;
    std::vector<double> delays;
    std::thread poster([&] {
        adoptThread("poster", ThreadRole::None, isUserInteractive, {});
        for (auto _ : state) {
            std::this_thread::sleep_for(kUntilAsleep);
            std::atomic<Time::time_point> begun{Time::time_point()};
            const auto before = Time::now();
            queue->post([&begun] {
                begun.store(Time::now(), std::memory_order_release);
                begun.notify_one();
            });
            const auto after = Time::now();
            begun.wait(Time::time_point());
            costs.push_back(microseconds(after - before));
            delays.push_back(microseconds(begun.load() - before));
            state.SetIterationTime(std::chrono::duration<double>(after - before).count());
        }
    });
    poster.join();
    report(state, "post_p50_us", "post_p99_us", costs);
    report(state, "begin_p50_us", "begin_p99_us", delays);
}

/// A post to a queue whose thread is at work, which needs no wake-up.
void postToBusyQueue(benchmark::State& state)
{
    constexpr int kPosts = 500;
    LinuxSerialQueues queues;
    for (auto _ : state) {
        const auto queue = queues.make({.label = "benchmark"});
        std::atomic<bool> isBusy{false};
        std::atomic<bool> mayEnd{false};
        queue->post([&] {
            isBusy = true;
            while (!mayEnd) {
                std::this_thread::yield();
            }
        });
        while (!isBusy) {
            std::this_thread::yield();
        }
        const auto before = Time::now();
        for (int i = 0; i < kPosts; ++i) {
            queue->post([] {});
        }
        state.SetIterationTime(std::chrono::duration<double>(Time::now() - before).count() / kPosts);
        mayEnd = true;
    }
}

/// A real-time post to a main thread that waits in its loop.
void postToSleepingMainThread(benchmark::State& state)
{
    constexpr std::chrono::microseconds kUntilAsleep{300};
    LinuxTimers timers;
    LinuxMainQueue queue(timers);
    std::atomic<bool> isOver{false};
    std::atomic<int> ran{0};
    std::thread main([&] {
        while (!isOver) {
            pollfd polled{.fd = queue.fd(), .events = POLLIN, .revents = 0};
            ::poll(&polled, 1, -1);
            queue.runReady();
        }
    });
    std::vector<double> costs;
    int posted = 0;
    for (auto _ : state) {
        std::this_thread::sleep_for(kUntilAsleep);
        const auto before = Time::now();
        queue.postRealtime([&ran] { ++ran; });
        const auto after = Time::now();
        ++posted;
        while (ran != posted) {
            std::this_thread::yield();
        }
        costs.push_back(microseconds(after - before));
        state.SetIterationTime(std::chrono::duration<double>(after - before).count());
    }
    queue.postRealtime([&isOver] { isOver = true; });
    main.join();
    report(state, "post_p50_us", "post_p99_us", costs);
}

BENCHMARK(postToSleepingQueue)->Arg(0)->Arg(1)->ArgName("interactive")->UseManualTime()->Iterations(2000);
BENCHMARK(postToBusyQueue)->UseManualTime()->Iterations(200);
BENCHMARK(postToSleepingMainThread)->UseManualTime()->Iterations(2000);

} // namespace

} // namespace tocca::platform::linux
