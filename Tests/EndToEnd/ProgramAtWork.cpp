#include "EndToEnd/ProgramAtWork.h"

#include "TestKit/Now.h"

#include <array>
#include <cstdlib>
#include <linux/input-event-codes.h>
#include <stdexcept>
#include <thread>

namespace tocca::endtoend {

namespace {

using testkit::now;

constexpr std::chrono::seconds kCapacity{300};
constexpr std::chrono::milliseconds kTail{300}; // longer than any sound

} // namespace

testkit::Process startProgram(const testkit::Process::Environment& changes)
{
    return testkit::Process({TOCCA_PROGRAM}, changes);
}

void soundServer(const char* command)
{
    testkit::Process run({PRIVATE_SESSION_SCRIPT, command});
    if (run.waitForExit(std::chrono::seconds(60)) != 0) {
        throw std::runtime_error(std::string(command) + " failed: " + run.output());
    }
}

void ProgramAtWork::SetUp()
{
    ASSERT_TRUE(program.waitForLine(kListens, kDeadline)) << program.output();
    recordAgain();
    ASSERT_TRUE(becomesAudible()) << program.output();
}

void ProgramAtWork::recordAgain()
{
    recorder.reset();
    recorder = std::make_unique<testkit::MonitorRecorder>(kCapacity, kDeadline);
}

bool ProgramAtWork::becomesAudible()
{
    constexpr std::array<std::uint16_t, 1> kKey{KEY_G};
    const double end = now() + std::chrono::duration<double>(kDeadline).count();
    while (now() < end) {
        if (typeAndHear(kKey, {}).heard() > 0) {
            return true;
        }
    }
    return false;
}

testkit::Hearing ProgramAtWork::typeAndHear(std::span<const std::uint16_t> keys,
                                            const testkit::Rhythm& rhythm)
{
    const std::vector<testkit::Stroke> strokes = testkit::type(keyboard, keys, rhythm, random);
    std::this_thread::sleep_for(kTail);
    EXPECT_TRUE(recorder->waitUntil(now(), kDeadline));
    return testkit::hear(strokes, recorder->recording());
}

std::vector<testkit::Sound> ProgramAtWork::soundsSince(double from)
{
    EXPECT_TRUE(recorder->waitUntil(now(), kDeadline));
    return testkit::soundsOf(recorder->recording(), from);
}

} // namespace tocca::endtoend
