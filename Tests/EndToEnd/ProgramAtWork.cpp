#include "EndToEnd/ProgramAtWork.h"

#include "Instruments/Now.h"

#include <stdexcept>
#include <thread>

namespace tocca::endtoend {

namespace {

using namespace std::chrono_literals;
using instruments::now;

constexpr std::chrono::seconds kCapacity{300};

} // namespace

instruments::Process startProgram(const instruments::Process::Environment& changes)
{
    return instruments::Process({TOCCA_PROGRAM}, changes);
}

void soundServer(const char* command)
{
    instruments::Process run({PRIVATE_SESSION_SCRIPT, command});
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
    elsewhere =
        std::make_unique<instruments::XWindow>(instruments::XWindow::Traits{"elsewhere", "Elsewhere"});
    elsewhere->activate();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() != "Tocca Studio"; }));
    recordAgain();
    ASSERT_TRUE(instruments::becomesAudible(keyboard, *recorder, kDeadline)) << program.output();
}

void ProgramAtWork::recordAgain()
{
    recorder.reset();
    recorder = std::make_unique<instruments::MonitorRecorder>(kCapacity, kDeadline);
}

instruments::Hearing ProgramAtWork::typeAndHear(std::span<const std::uint16_t> keys,
                                                const instruments::Rhythm& rhythm)
{
    return instruments::typeAndHear(keyboard, *recorder, keys, rhythm, random, kDeadline);
}

std::vector<instruments::Sound> ProgramAtWork::soundsSince(double from)
{
    EXPECT_TRUE(recorder->waitUntil(now(), kDeadline));
    return instruments::soundsOf(recorder->recording(), from);
}

} // namespace tocca::endtoend
