#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/Now.h"

#include <csignal>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;

/// Brings the session's sound server back, whatever became of the test.
struct SoundServerTakenAway {
    SoundServerTakenAway() { soundServer("stop-sound"); }

    ~SoundServerTakenAway()
    {
        if (!isBack) {
            soundServer("start-sound");
        }
    }

    SoundServerTakenAway(const SoundServerTakenAway&) = delete;
    SoundServerTakenAway& operator=(const SoundServerTakenAway&) = delete;

    void bringBack()
    {
        isBack = true;
        soundServer("start-sound");
    }

    bool isBack = false;
};

void expectCleanEnd(instruments::Process& program)
{
    program.signal(SIGTERM);
    EXPECT_EQ(program.waitForExit(kPatience), 0) << program.output();
}

class Lifecycle : public ProgramAtWork {};

TEST_F(Lifecycle, EndsCleanlyWhenAskedTo)
{
    expectCleanEnd(program);
    EXPECT_EQ(program.countLines(kListens), 1);
}

TEST_F(Lifecycle, IsHeardAgainAfterTheSoundServerWasKilledAndStartedAnew)
{
    recorder.reset();
    SoundServerTakenAway server;
    constexpr std::array<std::uint16_t, 3> kIntoTheVoid{KEY_A, KEY_B, KEY_C};
    (void)instruments::type(keyboard, kIntoTheVoid, {}, random);
    EXPECT_TRUE(program.isRunning()) << program.output();

    server.bringBack();
    recordAgain();
    EXPECT_TRUE(instruments::becomesAudible(keyboard, *recorder, kPatience)) << program.output();
    expectCleanEnd(program);
}

TEST(LifecycleWithoutSound, SaysOnceThatItIsSilentAndRunsOn)
{
    const SoundServerTakenAway server;
    instruments::Process program = startProgram();
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();
    ASSERT_TRUE(program.waitForLine("No sound:", kPatience)) << program.output();

    instruments::XTestKeyboard keyboard;
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same typing each time
    (void)instruments::type(keyboard, instruments::ordinaryKeys(), {}, random);
    EXPECT_TRUE(program.isRunning()) << program.output();
    EXPECT_EQ(program.countLines("No sound:"), 1) << program.output();
    expectCleanEnd(program);
}

TEST(LifecycleWithoutDisplay, SaysOnceThatItCannotListenAndWaits)
{
    constexpr const char* kRefused = "Cannot start: Accessibility permission not granted yet.";
    instruments::Process program =
        startProgram({{"DISPLAY", std::nullopt}, {"WAYLAND_DISPLAY", std::nullopt}});
    ASSERT_TRUE(program.waitForLine(kRefused, kPatience)) << program.output();
    EXPECT_FALSE(program.waitForLine(kRefused, 4s, 2)) << "it asks every 1.5 s, but says so once";
    EXPECT_TRUE(program.isRunning()) << program.output();
    EXPECT_EQ(program.countLines(kListens), 0);
    expectCleanEnd(program);
}

} // namespace
} // namespace tocca::endtoend
