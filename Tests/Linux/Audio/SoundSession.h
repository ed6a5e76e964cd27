#pragma once

#include "Instruments/Waiting.h"
#include "PatternSource.h"
#include "Platform/Linux/Audio/LinuxAudioOutput.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/StandardOutput.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <string_view>

namespace tocca::platform::linux {

/// Counts lines, whichever thread they come from.
class CountingOutput final : public StandardOutput {
public:
    void printLine(std::string_view) override { ++lines; }

    std::atomic<int> lines{0};
};

/// Tests that take the sound servers of the private session they run in away and bring them back.
class SoundSession : public testing::Test {
protected:
    /// Ends what the test before has left.
    void SetUp() override;

    /// Starts `server` as the session's script calls it.
    static void startSound(const std::string& server);
    static void stopSound();

    static void runInSession(const std::string& command);

    template <class Condition>
    [[nodiscard]] static bool eventually(const Condition& condition)
    {
        return instruments::becomesTrue(condition);
    }

    void startOutput(LinuxAudioOutputOptions options = {});

    /// Waits for the pattern in what the sink plays.
    [[nodiscard]] bool isHeard() const;

    [[nodiscard]] bool plays(SoundServer server) const;

    CountingOutput lines;
    PatternSource source;
    std::unique_ptr<LinuxAudioOutput> output;

private:
};

} // namespace tocca::platform::linux
