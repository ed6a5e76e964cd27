#include "Instruments/Hearing.h"

#include <gtest/gtest.h>

namespace tocca::instruments {
namespace {

constexpr double kRate = 48000.0;
constexpr double kBegin = 1000.5; // seconds at which the recording begins

/// Half a second with a click of 1 ms at each of `times` (seconds after its beginning).
Recording clicksAt(const std::vector<double>& times)
{
    Recording recording;
    recording.samples.resize(48000);
    recording.blocks = {{.frame = 0, .time = kBegin}};
    for (const double time : times) {
        const auto first = static_cast<std::size_t>(time * kRate);
        for (std::size_t frame = first; frame < first + 48; ++frame) {
            recording.samples[2 * frame] = frame % 2 == 0 ? 0.5F : -0.5F;
        }
    }
    return recording;
}

TEST(Hearing, GivesEachSoundToTheStrokeBeforeIt)
{
    struct Row {
        const char* name;
        std::vector<double> sounds;
        std::vector<bool> heard; // of strokes at 0.1 and 0.2
        std::size_t others;
    };

    const std::vector<Row> rows{
        {.name = "each once", .sounds = {0.102, 0.202}, .heard = {true, true}, .others = 0},
        {.name = "one late, but before the next",
         .sounds = {0.160, 0.202},
         .heard = {true, true},
         .others = 0},
        {.name = "one missed", .sounds = {0.202}, .heard = {false, true}, .others = 0},
        {.name = "one twice", .sounds = {0.102, 0.150, 0.202}, .heard = {true, true}, .others = 1},
        {.name = "one long after the last", .sounds = {0.102, 0.400}, .heard = {true, false}, .others = 1},
        {.name = "one before the first", .sounds = {0.050, 0.102, 0.202}, .heard = {true, true}, .others = 0},
        {.name = "silence", .sounds = {}, .heard = {false, false}, .others = 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Hearing hearing =
            hear({{.key = 1, .time = kBegin + 0.1}, {.key = 2, .time = kBegin + 0.2}}, clicksAt(row.sounds));
        ASSERT_EQ(hearing.ofStroke.size(), 2U);
        EXPECT_EQ(hearing.ofStroke[0].has_value(), row.heard[0]);
        EXPECT_EQ(hearing.ofStroke[1].has_value(), row.heard[1]);
        EXPECT_EQ(hearing.others.size(), row.others);
    }
}

TEST(Hearing, TellsWhenASoundBegan)
{
    const Hearing hearing = hear({{.key = 1, .time = kBegin + 0.1}}, clicksAt({0.1025}));
    ASSERT_EQ(hearing.heard(), 1U);
    EXPECT_DOUBLE_EQ(hearing.ofStroke[0]->time, kBegin + 0.1025);
}

} // namespace
} // namespace tocca::instruments
