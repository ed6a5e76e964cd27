#include "Platform/Linux/System/Threads/LinuxThreads.h"
#include "Platform/Linux/System/Threads/RunLoop.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

std::string nameOfThisThread()
{
    std::array<char, 16> name{};
    ::pthread_getname_np(::pthread_self(), name.data(), name.size());
    return name.data();
}

TEST(LinuxThreads, RunTheBodyWithTheNameAndRoleAskedForAndEndWithoutSources)
{
    LinuxThreads threads;
    std::string name;
    ThreadRole role = ThreadRole::None;
    const auto held = std::make_shared<int>();
    auto thread =
        threads.start({.name = "com.tocca.keyboardhook", .role = ThreadRole::Capture}, [&name, &role, held] {
            name = nameOfThisThread();
            role = threadRole();
        });
    while (held.use_count() > 1) { // the body is destroyed as soon as it has run
        ::sched_yield();
    }
    thread->stop();
    thread->stop();
    EXPECT_EQ(name, "com.tocca.keybo");
    EXPECT_EQ(role, ThreadRole::Capture);
    EXPECT_EQ(threadRole(), ThreadRole::None) << "the starting thread's own role changed";
}

TEST(LinuxThreads, RunAnInteractiveThreadInARealTimeClassWhereTheyMay)
{
    std::atomic<bool> hasAppealed{false};
    LinuxThreads threads([&](std::uint64_t) { hasAppealed = true; });
    std::atomic<int> policy{-1};
    auto thread = threads.start({.name = "interactive", .isUserInteractive = true},
                                [&] { policy = ::sched_getscheduler(0) & ~SCHED_RESET_ON_FORK; });
    while (policy < 0) {
        ::sched_yield();
    }
    thread.reset();
    if (policy != SCHED_RR && ::geteuid() != 0) {
        GTEST_SKIP() << "this user may not raise a thread";
    }
    EXPECT_EQ(policy, SCHED_RR);
    EXPECT_FALSE(hasAppealed);

    threads.start({.name = "ordinary"}, [] {}).reset();
    EXPECT_FALSE(hasAppealed) << "nobody asked for more";
}

/// What a program of an ordinary user sees: neither real-time priorities nor raised nice values.
void giveUpPrivileges()
{
    constexpr uid_t kNobody = 65534;
    const rlimit none{.rlim_cur = 0, .rlim_max = 0};
    ::setrlimit(RLIMIT_RTPRIO, &none);
    ::setrlimit(RLIMIT_NICE, &none);
    if (::geteuid() == 0 && ::setuid(kNobody) != 0) {
        std::_Exit(2);
    }
}

TEST(LinuxThreads, AppealForAnInteractiveThreadThatTheKernelRefuses)
{
    EXPECT_EXIT(
        {
            giveUpPrivileges();
            std::atomic<std::uint64_t> appealedFor{0};
            LinuxThreads threads([&](std::uint64_t threadId) { appealedFor = threadId; });
            std::atomic<std::uint64_t> threadId{0};
            auto thread = threads.start({.name = "refused", .isUserInteractive = true}, [&] {
                threadId = static_cast<std::uint64_t>(::gettid());
                threadId.notify_all();
            });
            threadId.wait(0);
            thread.reset();
            std::_Exit(appealedFor == threadId ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(RunLoop, ServesASourceUntilItIsDetachedAndThenEndsTheThread)
{
    LinuxThreads threads;
    WakeDescriptor input;
    const int descriptor = input.fd();
    std::unique_ptr<LoopSource> source;
    std::atomic<int> calls{0};
    std::atomic<bool> isAttached{false};
    const auto held = std::make_shared<int>();
    auto thread = threads.start({.name = "loop"}, [&, held] {
        source = RunLoop::current()->attach(&descriptor, [&calls, &input, held] {
            input.drain();
            ++calls;
            calls.notify_all();
        });
        isAttached = true;
        isAttached.notify_all();
    });
    isAttached.wait(false);
    input.wake();
    calls.wait(0);
    input.wake();
    calls.wait(1);

    source.reset();
    input.wake();
    while (held.use_count() > 1) { // the loop lets go of the callback
        ::sched_yield();
    }
    thread->stop();
    EXPECT_EQ(calls, 2) << "called after it was detached";
    EXPECT_EQ(RunLoop::current(), nullptr);
}

TEST(RunLoop, DetachingWaitsForTheRunningCallback)
{
    LinuxThreads threads;
    WakeDescriptor input;
    const int descriptor = input.fd();
    std::unique_ptr<LoopSource> source;
    std::atomic<bool> isInside{false};
    std::atomic<bool> mayLeave{false};
    std::atomic<bool> hasLeft{false};
    input.wake();
    const auto thread = threads.start({.name = "loop"}, [&] {
        source = RunLoop::current()->attach(&descriptor, [&] {
            input.drain();
            isInside = true;
            isInside.notify_all();
            mayLeave.wait(false);
            hasLeft = true;
        });
    });
    isInside.wait(false);
    const auto releaser = threads.start({.name = "releaser"}, [&] {
        mayLeave = true;
        mayLeave.notify_all();
    });
    source.reset();
    EXPECT_TRUE(hasLeft);
}

TEST(RunLoop, NeverRunsABodyThatWasStoppedBeforeItBegan)
{
    const auto loop = std::make_shared<RunLoop>();
    bool hasRun = false;
    loop->stop();
    loop->run([&] { hasRun = true; });
    EXPECT_FALSE(hasRun);
}

TEST(RunLoop, CallbacksMayDetachAnySourceAndAttachNewOnes)
{
    const auto loop = std::make_shared<RunLoop>();
    std::array<WakeDescriptor, 3> inputs;
    const std::array<int, 3> descriptors{inputs[0].fd(), inputs[1].fd(), inputs[2].fd()};
    std::vector<std::unique_ptr<LoopSource>> sources(3);
    std::string calls;
    loop->run([&] {
        inputs[0].wake();
        inputs[1].wake();
        sources[0] = loop->attach(&descriptors[0], [&] {
            calls += 'a';
            sources[1].reset(); // readable in the same turn
            sources[2] = loop->attach(&descriptors[2], [&] {
                calls += 'c';
                sources[2].reset();
            });
            inputs[2].wake();
            sources[0].reset();
        });
        sources[1] = loop->attach(&descriptors[1], [&] { calls += 'b'; });
    });
    EXPECT_EQ(calls, "ac");
}

} // namespace

} // namespace tocca::platform::linux
