#include "EndToEnd/ProgramAtWork.h"

#include "Instruments/Now.h"

#include <stdexcept>

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

void ProgramAtWork::SetUp()
{
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() == "Tocca Studio"; })) << program.output();
    elsewhere =
        std::make_unique<instruments::XWindow>(instruments::XWindow::Traits{"elsewhere", "Elsewhere"});
    elsewhere->activate();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() != "Tocca Studio"; }));
    recordAgain();
    ASSERT_TRUE(instruments::becomesAudible(keyboard, *recorder, kPatience)) << program.output();
}

void ProgramAtWork::recordAgain()
{
    recorder.reset();
    recorder = std::make_unique<instruments::MonitorRecorder>(kCapacity, kPatience);
}

instruments::Hearing ProgramAtWork::typeAndHear(std::span<const std::uint16_t> keys,
                                                const instruments::Rhythm& rhythm)
{
    return instruments::typeAndHear(keyboard, *recorder, keys, rhythm, random, kPatience);
}

std::vector<instruments::Sound> ProgramAtWork::soundsSince(double from)
{
    EXPECT_TRUE(recorder->waitUntil(now(), kPatience));
    return instruments::soundsOf(recorder->recording(), from);
}

} // namespace tocca::endtoend
