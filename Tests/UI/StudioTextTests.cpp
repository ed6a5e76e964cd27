#include "UI/Studio/Stage/VisualKey.h"
#include "UI/Studio/StudioText.h"
#include "UI/Studio/WindowMenu/KeyEquivalentText.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tocca::ui {
namespace {

TEST(StudioText, ReadsVolumesAsWholePercents)
{
    struct Row {
        float volume;
        std::string_view reading;
        int activePreset; // index; -1 is none
    };

    constexpr auto kRows = std::to_array<Row>({
        {.volume = 0.0F, .reading = "0%", .activePreset = -1},
        {.volume = 0.25F, .reading = "25%", .activePreset = 0},
        {.volume = 0.479F, .reading = "47%", .activePreset = 1},
        {.volume = 0.57F, .reading = "57%", .activePreset = -1},
        {.volume = 0.7F, .reading = "70%", .activePreset = -1},
        {.volume = 0.74F, .reading = "74%", .activePreset = 2},
        {.volume = 0.999F, .reading = "99%", .activePreset = 3},
    });
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.reading);
        EXPECT_EQ(studioText::percentage(row.volume), row.reading);
        for (int i = 0; i < 4; ++i) {
            const float preset = studioText::kVolumePresets.at(static_cast<std::size_t>(i));
            EXPECT_EQ(studioText::isPresetActive(preset, row.volume), i == row.activePreset) << i;
        }
    }
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(studioText::percentage(studioText::levelOf(percent / 100.0)),
                  std::to_string(percent) + "%");
    }
    EXPECT_EQ(studioText::levelOf(0.4567), 0.4567F);
    EXPECT_EQ(studioText::presetLabel(0.25F), "25%");
    EXPECT_EQ(studioText::presetLabel(1.0F), "100% (MAX)");
}

TEST(StudioText, CallsAStemDryUpToFivePercent)
{
    EXPECT_EQ(studioText::lubeReading(0.0F), "Factory Dry");
    EXPECT_EQ(studioText::lubeReading(0.05F), "Factory Dry");
    EXPECT_EQ(studioText::lubeReading(0.06F), "6% Lubed");
    EXPECT_EQ(studioText::lubeReading(1.0F), "100% Lubed");
}

TEST(StudioText, NamesTheKeysOfAMenuItem)
{
    EXPECT_EQ(keyEquivalentText({}), "");
    EXPECT_EQ(keyEquivalentText({.key = "q"}), "Ctrl+Q");
    EXPECT_EQ(keyEquivalentText({.key = "Z"}), "Ctrl+Shift+Z");
    EXPECT_EQ(keyEquivalentText({.key = "h", .option = true}), "Ctrl+Alt+H");
    EXPECT_EQ(keyEquivalentText({.key = "n", .control = true}), "Ctrl+Super+N");
    EXPECT_EQ(keyEquivalentText({.key = "[", .command = false}), "[");
}

TEST(MiniKeyboard, HasEveryCapOnce)
{
    std::set<std::string> ids;
    std::set<std::uint16_t> codes;
    for (int row = 0; row < miniKeyboard::kRowCount; ++row) {
        for (const VisualKey& key : miniKeyboard::row(row)) {
            ids.insert(key.id());
            EXPECT_TRUE(codes.insert(key.code).second) << key.id();
        }
    }
    EXPECT_EQ(ids.size(), 59U);
    for (const char* id : {"53_esc", "0_A", "56_⇧", "60_⇧"}) {
        EXPECT_TRUE(ids.contains(id)) << id;
    }
}

TEST(MiniKeyboard, ShrinksTheCapsOfARowInProportion)
{
    constexpr auto kUnits = std::to_array<double>({14.5, 14.4, 14.1, 13.6, 11.4});
    constexpr auto kGaps = std::to_array<double>({32.5, 32.5, 30, 27.5, 12.5});
    for (int row = 0; row < miniKeyboard::kRowCount; ++row) {
        SCOPED_TRACE(row);
        const auto keys = miniKeyboard::row(row);
        const double units = kUnits.at(static_cast<std::size_t>(row));
        const double gaps = kGaps.at(static_cast<std::size_t>(row));
        EXPECT_DOUBLE_EQ(miniKeyboard::unitWidth(keys, 1000), 20);
        EXPECT_NEAR(miniKeyboard::unitWidth(keys, 200), (200 - gaps) / units, 1e-9);
        EXPECT_DOUBLE_EQ(miniKeyboard::unitWidth(keys, 5), 0);
    }
    EXPECT_DOUBLE_EQ(miniKeyboard::fullWidth(), 334.5);
    EXPECT_DOUBLE_EQ(miniKeyboard::fullHeight(), 114);
}

} // namespace
} // namespace tocca::ui
