#include "EndToEnd/ProgramAtWork.h"
#include "TestKit/Now.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <thread>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Ge;
using testing::Le;

class PeripheralSounds : public ProgramAtWork {
protected:
    /// The highest sample of each channel that a press of `button` makes.
    std::array<float, 2> peaksOf(std::uint8_t button)
    {
        std::this_thread::sleep_for(300ms); // the end of whatever sounds
        const double from = keyboard.pressButton(button);
        std::this_thread::sleep_for(100ms);
        keyboard.releaseButton(button);
        EXPECT_EQ(soundsSince(from).size(), 1U);
        const testkit::Recording recording = recorder->recording();
        std::array<float, 2> peaks{};
        const auto samples = recording.between(from, testkit::now());
        for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
            peaks[0] = std::max(peaks[0], samples[i]);
            peaks[1] = std::max(peaks[1], samples[i + 1]);
        }
        return peaks;
    }
};

TEST_F(PeripheralSounds, AreAsLoudAsTheyWereMade)
{
    constexpr float kFullScale = 32768.0F;
    // Each is played a little faster or slower every time, so that its highest point falls between two samples.
    constexpr float kMissed = 0.96F;
    constexpr float kOvershot = 1.01F;
    constexpr int kRounds = 5;

    struct Row {
        const char* name;
        std::uint8_t button;
        float level; ///< highest sample × volume
    };

    const std::array<Row, 5> rows{{
        {.name = "left button", .button = 1, .level = 22329 / kFullScale * 0.85F},
        {.name = "middle button", .button = 2, .level = 22329 / kFullScale * 0.85F},
        {.name = "right button", .button = 3, .level = 20819 / kFullScale * 0.85F},
        {.name = "wheel up", .button = 4, .level = 12211 / kFullScale * 0.45F},
        {.name = "wheel down", .button = 5, .level = 12211 / kFullScale * 0.45F},
    }};
    for (const Row& row : rows) {
        for (int round = 0; round < kRounds; ++round) {
            SCOPED_TRACE(row.name);
            const auto within = AllOf(Ge(row.level * kMissed), Le(row.level * kOvershot));
            EXPECT_THAT(peaksOf(row.button), testing::ElementsAre(within, within)) << "in the middle";
        }
    }
}

} // namespace
} // namespace tocca::endtoend
