#include "Platform/Linux/Audio/OutputMeter.h"

#include "Platform/Linux/Audio/BlockClock.h"
#include "Support/ThreadRole.h"
#include "TestKit/RealtimeGuard.h"

#include <gtest/gtest.h>

#include <array>

namespace tocca::platform::linux {
namespace {

/// Notes the role it is rendered in.
class RoleSource final : public player::RenderSource {
public:
    void render(std::span<float>, const player::RenderCycle&) noexcept override { role = threadRole(); }

    ThreadRole role = ThreadRole::None;
};

TEST(OutputMeter, RendersAsTheRenderThreadAndLeavesTheThreadAsItWas)
{
    OutputMeter meter;
    RoleSource source;
    std::array<float, 128> block{};
    const testkit::RealtimeGuard guard;
    meter.countCycle(0, 64);
    meter.render(source, block, {.beginsAt = 1.0, .sampleRate = 44100.0, .quantum = 64});
    const auto violations = guard.violations();

    EXPECT_EQ(violations.total(), 0U);
    EXPECT_EQ(source.role, ThreadRole::Render);
    EXPECT_EQ(threadRole(), ThreadRole::None);
    EXPECT_EQ(meter.quantum(), 64);
    EXPECT_EQ(meter.cycles(), 1U);
}

TEST(OutputMeter, CountsCyclesThatTheServersPositionHasPassedOver)
{
    struct Row {
        const char* name;
        std::array<std::uint64_t, 4> positions;
        std::uint64_t dropOuts;
        std::uint64_t missed;
    };

    constexpr std::array kRows{
        Row{.name = "in step", .positions = {1000, 1064, 1128, 1192}, .dropOuts = 0, .missed = 0},
        Row{.name = "one missed", .positions = {1000, 1064, 1192, 1256}, .dropOuts = 1, .missed = 1},
        Row{.name = "a long pause", .positions = {1000, 1064, 1768, 1832}, .dropOuts = 1, .missed = 10},
        Row{.name = "two pauses", .positions = {1000, 1128, 1192, 1320}, .dropOuts = 2, .missed = 2},
        Row{.name = "rounded", .positions = {1000, 1065, 1127, 1192}, .dropOuts = 0, .missed = 0},
        Row{.name = "another clock", .positions = {9000, 9064, 12, 76}, .dropOuts = 0, .missed = 0},
        Row{.name = "the same again", .positions = {1000, 1064, 1064, 1128}, .dropOuts = 0, .missed = 0},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        OutputMeter meter;
        for (const std::uint64_t position : row.positions) {
            meter.countCycle(position, 64);
        }
        EXPECT_EQ(meter.dropOuts(), row.dropOuts);
        EXPECT_EQ(meter.missedCycles(), row.missed);
    }
}

TEST(OutputMeter, DoesNotCountTheTimeItWasReleased)
{
    OutputMeter meter;
    meter.countCycle(1000, 64);
    meter.restart();
    meter.countCycle(900'000, 64);
    meter.countCycle(900'064, 64);
    EXPECT_EQ(meter.dropOuts(), 0U);
}

TEST(BlockClock, LaysBlocksEndToEndHoweverTheRequestsAreScheduled)
{
    constexpr double kRate = 48000.0;
    constexpr int kFrames = 480;
    BlockClock clock;
    double previous = clock.begin(100.0, kFrames, kRate).beginsAt;
    EXPECT_DOUBLE_EQ(previous, 100.0);
    for (int i = 1; i < 500; ++i) {
        const double lateness = (i % 5) * 0.002; // up to 8 ms
        const double begin = clock.begin(100.0 + i * 0.01 + lateness, kFrames, kRate).beginsAt;
        EXPECT_NEAR(begin - previous, 0.01, 0.0006) << "block " << i;
        previous = begin;
    }
    EXPECT_NEAR(previous, 100.0 + 499 * 0.01 + 0.004, 0.002) << "it follows the mean of the requests";

    EXPECT_DOUBLE_EQ(clock.begin(200.0, kFrames, kRate).beginsAt, 200.0) << "after a pause it starts afresh";
}

TEST(BlockClock, KeepsTheQuantumOfAlternatingBlocksConstant)
{
    constexpr double kRate = 48000.0;
    BlockClock clock;
    double now = 100.0;
    const auto next = [&](int frames) {
        const int quantum = clock.begin(now, frames, kRate).quantum;
        now += frames / kRate;
        return quantum;
    };
    EXPECT_EQ(next(1024), 1024);
    EXPECT_EQ(next(256), 256) << "the first block only filled the buffer";
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(next(i % 3 == 0 ? 256 : 128), 256) << "block " << i;
    }
    for (int i = 0; i < 1100; ++i) {
        (void)next(128);
    }
    EXPECT_EQ(next(128), 128) << "larger ones are forgotten in the end";
}

} // namespace
} // namespace tocca::platform::linux
