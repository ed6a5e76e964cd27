#include "EndToEnd/ProgramAtWork.h"

#include "TestKit/Now.h"

#include <stdexcept>
#include <thread>

namespace tocca::endtoend {

namespace {

using namespace std::chrono_literals;
using testkit::now;

constexpr std::chrono::seconds kCapacity{300};

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

bool becomesTrue(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + kDeadline;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

void ProgramAtWork::SetUp()
{
    ASSERT_TRUE(program.waitForLine(kListens, kDeadline)) << program.output();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() == "Tocca Studio"; })) << program.output();
    elsewhere = std::make_unique<testkit::XWindow>(testkit::XWindow::Traits{"elsewhere", "Elsewhere"});
    elsewhere->activate();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() != "Tocca Studio"; }));
    recordAgain();
    ASSERT_TRUE(testkit::becomesAudible(keyboard, *recorder, kDeadline)) << program.output();
}

void ProgramAtWork::recordAgain()
{
    recorder.reset();
    recorder = std::make_unique<testkit::MonitorRecorder>(kCapacity, kDeadline);
}

testkit::Hearing ProgramAtWork::typeAndHear(std::span<const std::uint16_t> keys,
                                            const testkit::Rhythm& rhythm)
{
    return testkit::typeAndHear(keyboard, *recorder, keys, rhythm, random, kDeadline);
}

std::vector<testkit::Sound> ProgramAtWork::soundsSince(double from)
{
    EXPECT_TRUE(recorder->waitUntil(now(), kDeadline));
    return testkit::soundsOf(recorder->recording(), from);
}

} // namespace tocca::endtoend
