#pragma once

#include "Instruments/Hearing.h"
#include "Instruments/MonitorRecorder.h"
#include "Instruments/Process.h"
#include "Instruments/Rehearsal.h"
#include "Instruments/Waiting.h"
#include "Instruments/XScreen.h"
#include "Instruments/XTestKeyboard.h"
#include "Instruments/XWindow.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <span>
#include <vector>

namespace tocca::endtoend {

/// What the program prints when it hears the session.
inline constexpr const char* kListens =
    "✅ Global dedicated keyboard & peripheral tap thread running permanently!";

using instruments::becomesTrue;
using instruments::kPatience;

/// The program under test, started with changes to its environment.
[[nodiscard]] instruments::Process startProgram(const instruments::Process::Environment& changes = {});

/// Runs the session's own sound server commands, "stop-sound" and "start-sound".
void soundServer(const char* command);

/// The program at work in this session, with a synthetic keyboard and a recorder at its sink.
class ProgramAtWork : public testing::Test {
protected:
    /// Waits until the program listens and its first key has been heard. Keys go to the window of another program, since in the
    /// program's own they would work its controls.
    void SetUp() override;

    /// Types `keys` and returns what was heard of them, waiting for the end of the last sound.
    [[nodiscard]] instruments::Hearing typeAndHear(std::span<const std::uint16_t> keys,
                                                   const instruments::Rhythm& rhythm);

    /// What is heard from `from` (seconds) to now, waiting until now has been recorded.
    [[nodiscard]] std::vector<instruments::Sound> soundsSince(double from);

    /// Begins to record anew, which the end of a sound server makes necessary.
    void recordAgain();

    instruments::Process program{startProgram()};
    instruments::XScreen screen;
    std::unique_ptr<instruments::XWindow> elsewhere;
    std::unique_ptr<instruments::MonitorRecorder> recorder;
    instruments::XTestKeyboard keyboard;
    std::mt19937 random{20}; // NOLINT(cert-msc51-cpp): the same typing each time
};

} // namespace tocca::endtoend
