#pragma once

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

    /// Waits until `condition` holds; false when that takes longer than anything here ever should.
    template <class Condition>
    [[nodiscard]] static bool eventually(Condition condition)
    {
        const double deadline = monotonicSeconds() + kDeadline;
        while (!condition()) {
            if (monotonicSeconds() > deadline) {
                return false;
            }
            pause();
        }
        return true;
    }

    void startOutput(LinuxAudioOutputOptions options = {});

    /// Waits for the pattern in what the sink plays.
    [[nodiscard]] bool isHeard() const;

    [[nodiscard]] bool plays(SoundServer server) const;

    CountingOutput lines;
    PatternSource source;
    std::unique_ptr<LinuxAudioOutput> output;

private:
    static constexpr double kDeadline = 20.0; // seconds

    static void pause();
};

} // namespace tocca::platform::linux
