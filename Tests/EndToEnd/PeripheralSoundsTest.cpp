#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/Now.h"

#include <algorithm>
#include <array>
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
    /// The highest sample that a press of `button` makes, the same in both channels.
    float peakOf(std::uint8_t button)
    {
        std::this_thread::sleep_for(300ms); // the end of whatever sounds
        const double from = keyboard.pressButton(button);
        std::this_thread::sleep_for(100ms);
        keyboard.releaseButton(button);
        EXPECT_EQ(soundsSince(from).size(), 1U);
        const instruments::Recording recording = recorder->recording();
        float peak = 0.0F;
        float difference = 0.0F;
        const auto samples = recording.between(from, instruments::now());
        for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
            peak = std::max(peak, samples[i]);
            difference = std::max(difference, std::abs(samples[i] - samples[i + 1]));
        }
        EXPECT_EQ(difference, 0.0F) << "in the middle";
        return peak;
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
        SCOPED_TRACE(row.name);
        std::array<float, kRounds> peaks{};
        for (float& peak : peaks) {
            peak = peakOf(row.button);
        }
        // The middle one: a computer that stands still for a millisecond takes the top off a click.
        std::nth_element(peaks.begin(), peaks.begin() + kRounds / 2, peaks.end());
        EXPECT_THAT(peaks[kRounds / 2], AllOf(Ge(row.level * kMissed), Le(row.level * kOvershot)));
    }
}

} // namespace
} // namespace tocca::endtoend
