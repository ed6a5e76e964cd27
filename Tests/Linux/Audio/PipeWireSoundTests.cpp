#include "SoundSession.h"

#include <sys/resource.h>
#include <unistd.h>

namespace tocca::platform::linux {
namespace {

class PipeWireSound : public SoundSession {
protected:
    void SetUp() override
    {
        SoundSession::SetUp();
        startSound("pipewire");
    }
};

TEST_F(PipeWireSound, RendersInTheRealTimeThreadAtSixtyFourFrames)
{
    rlimit limit{};
    getrlimit(RLIMIT_RTPRIO, &limit);
    if (geteuid() != 0 && limit.rlim_cur == 0) {
        GTEST_SKIP() << "this user may not ask for real-time scheduling";
    }
    startOutput();
    ASSERT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_EQ(source.schedulingPolicy() & ~SCHED_RESET_ON_FORK, SCHED_FIFO);
    EXPECT_EQ(source.cycles().front().cycle.quantum, 64);
}

TEST_F(PipeWireSound, AsksForLongerCyclesWhenItCannotKeepUp)
{
    startOutput();
    ASSERT_TRUE(plays(SoundServer::PipeWire));
    source.slowDownBelow(128);
    EXPECT_TRUE(eventually([this] { return output->state().quantum >= 128; }));
    EXPECT_GT(output->state().dropOuts, 2U);
    EXPECT_GE(output->state().missedCycles, output->state().dropOuts);
    EXPECT_TRUE(plays(SoundServer::PipeWire));
}

TEST_F(PipeWireSound, FollowsASinkThatGoesAndComesBack)
{
    startOutput();
    ASSERT_TRUE(plays(SoundServer::PipeWire));
    runInSession("pactl unload-module module-null-sink");
    ASSERT_TRUE(eventually([this] { return output->state().server != SoundServer::PipeWire; }))
        << "what the session manager puts in its place is a dummy";
    runInSession("pactl load-module module-null-sink sink_name=speaker >/dev/null");
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_TRUE(isHeard());
}

TEST_F(PipeWireSound, TakesTheRateOfTheGraph)
{
    runInSession("pw-metadata -n settings 0 clock.force-rate 44100 >/dev/null");
    startOutput();
    ASSERT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_TRUE(eventually([this] { return output->sampleRate() == 44100.0; }));
    runInSession("pw-metadata -n settings 0 clock.force-rate 96000 >/dev/null");
    EXPECT_TRUE(eventually([this] { return output->sampleRate() == 96000.0; }));
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_TRUE(isHeard());
}

TEST_F(PipeWireSound, NeverWaitsForAServerThatHangsAndIsHeardWhenItGoesOn)
{
    startOutput();
    ASSERT_TRUE(plays(SoundServer::PipeWire));
    runInSession("kill -STOP $(cat \"$PRIVATE_SESSION_DIR/services/pipewire\")");
    std::uint64_t cycles = 0;
    ASSERT_TRUE(eventually([&] { return std::exchange(cycles, output->state().cycles) == cycles; }));
    const double before = monotonicSeconds();
    output->noteActivity();
    {
        CountingOutput others;
        PatternSource another;
        LinuxAudioOutput second(others);
        second.start(another);
        second.noteActivity();
    }
    EXPECT_LT(monotonicSeconds() - before, 2.0);
    runInSession("kill -CONT $(cat \"$PRIVATE_SESSION_DIR/services/pipewire\")");
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_TRUE(isHeard());
}

/// Which of several servers, or none, an output plays to.
class SoundServerChoice : public SoundSession {};

TEST_F(SoundServerChoice, SaysOnceThatThereIsNoneAndIsHeardAsSoonAsThereIs)
{
    startOutput();
    ASSERT_TRUE(eventually([this] { return lines.lines > 0; }));
    EXPECT_EQ(output->state().server, SoundServer::None);
    EXPECT_EQ(output->sampleRate(), 48000.0) << "what the mixer may assume until it is told";
    output->noteActivity();

    startSound("pipewire");
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_TRUE(isHeard());

    stopSound();
    ASSERT_TRUE(plays(SoundServer::None));
    startSound("pipewire");
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_EQ(lines.lines, 1);
}

TEST_F(SoundServerChoice, PlaysThroughPulseAudioWhilePipeWireHasNoSink)
{
    startSound("pipewire-without-sink");
    startSound("pulseaudio");
    startOutput();
    EXPECT_TRUE(plays(SoundServer::PulseAudio));
    EXPECT_TRUE(isHeard());

    runInSession("pw-cli create-node adapter '{ factory.name=support.null-audio-sink node.name=late "
                 "media.class=Audio/Sink object.linger=true audio.position=[ FL FR ] }' >/dev/null");
    EXPECT_TRUE(plays(SoundServer::PipeWire));
    EXPECT_EQ(lines.lines, 0);
}

} // namespace
} // namespace tocca::platform::linux
