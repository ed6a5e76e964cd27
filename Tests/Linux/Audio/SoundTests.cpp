#include "SoundSession.h"

#include <array>
#include <ostream>

namespace tocca::platform::linux {
namespace {

/// A kind of server and how to start it.
struct Kind {
    const char* name;
    const char* started;
    bool usesPipeWire;
    SoundServer server;
};

void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

constexpr std::array kKinds{
    Kind{.name = "PipeWire", .started = "pipewire", .usesPipeWire = true, .server = SoundServer::PipeWire},
    Kind{.name = "PipeWirePulse",
         .started = "pipewire",
         .usesPipeWire = false,
         .server = SoundServer::PulseAudio},
    Kind{.name = "PulseAudio",
         .started = "pulseaudio",
         .usesPipeWire = true,
         .server = SoundServer::PulseAudio},
};

/// Seconds. PulseAudio's null sink plays up to two seconds of silence before it notices that somebody plays.
constexpr double kGenerous = 5.0;

class Sound : public SoundSession, public testing::WithParamInterface<Kind> {
protected:
    void start(double idleSeconds = 30.0)
    {
        startSound(GetParam().started);
        startOutput({.idleSeconds = idleSeconds, .usesPipeWire = GetParam().usesPipeWire});
    }
};

INSTANTIATE_TEST_SUITE_P(Any, Sound, testing::ValuesIn(kKinds),
                         [](const auto& information) { return information.param.name; });

TEST_P(Sound, IsHeardAsItWasRendered)
{
    start();
    EXPECT_TRUE(isHeard());
    const AudioOutputState state = output->state();
    EXPECT_EQ(state.server, GetParam().server);
    EXPECT_TRUE(state.isAwake);
    EXPECT_EQ(source.role(), ThreadRole::Render);
    EXPECT_EQ(lines.lines, 0);
}

TEST_P(Sound, SaysOfEachCycleWhenItBeganAndHowLongItIs)
{
    start();
    ASSERT_TRUE(eventually([this] { return source.cycles().size() > 400; }));
    const double now = monotonicSeconds();
    const auto cycles = source.cycles();
    int inStep = 0;
    for (std::size_t i = 1; i < cycles.size(); ++i) {
        const auto& [before, framesBefore] = cycles[i - 1];
        const auto& [cycle, frames] = cycles[i];
        ASSERT_EQ(cycle.sampleRate, output->sampleRate());
        ASSERT_GE(cycle.quantum, frames);
        const double length = framesBefore / before.sampleRate;
        inStep += std::abs(cycle.beginsAt - before.beginsAt - length) < 0.2 * length ? 1 : 0;
    }
    EXPECT_GT(inStep, static_cast<int>(cycles.size()) * 8 / 10) << "cycles follow one another";
    EXPECT_LE(cycles.back().cycle.beginsAt, now + 0.1);
    EXPECT_GT(cycles.back().cycle.beginsAt, now - 5.0) << "on the monotonic clock";
}

TEST_P(Sound, IsReleasedWhenIdleAndBackWithTheNextStroke)
{
    start(0.3);
    ASSERT_TRUE(plays(GetParam().server));
    for (int round = 0; round < 3; ++round) {
        std::uint64_t cycles = 0;
        ASSERT_TRUE(eventually([&] {
            const bool isStill = !output->state().isAwake && output->state().cycles == cycles;
            cycles = output->state().cycles;
            return isStill;
        }));
        const double before = monotonicSeconds();
        ASSERT_TRUE(eventually([&] {
            output->noteActivity();
            return output->state().cycles > cycles;
        }));
        EXPECT_LT(monotonicSeconds() - before, kGenerous);
    }
}

TEST_P(Sound, ComesBackWhenTheServerWasRestarted)
{
    start();
    ASSERT_TRUE(plays(GetParam().server));
    stopSound();
    ASSERT_TRUE(plays(SoundServer::None));
    startSound(GetParam().started);
    EXPECT_TRUE(plays(GetParam().server));
    EXPECT_TRUE(isHeard());
}

TEST_P(Sound, EndsTheLastCallOfTheSourceBeforeItIsGone)
{
    source.slowDownBelow(100'000);
    startSound(GetParam().started);
    for (int round = 0; round < 5; ++round) {
        startOutput({.usesPipeWire = GetParam().usesPipeWire});
        ASSERT_TRUE(plays(GetParam().server));
        output.reset();
        EXPECT_FALSE(source.isRendering());
    }
}

} // namespace
} // namespace tocca::platform::linux
