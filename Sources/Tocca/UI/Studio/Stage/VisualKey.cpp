#include "UI/Studio/Stage/VisualKey.h"

#include <algorithm>
#include <numeric>

namespace tocca::ui {
namespace {

constexpr auto kRow1 = std::to_array<VisualKey>({
    {"esc", 53},
    {"1", 18},
    {"2", 19},
    {"3", 20},
    {"4", 21},
    {"5", 23},
    {"6", 22},
    {"7", 26},
    {"8", 28},
    {"9", 25},
    {"0", 29},
    {"-", 27},
    {"=", 24},
    {"⌫", 51, 1.5},
});
constexpr auto kRow2 = std::to_array<VisualKey>({
    {"⇥", 48, 1.3},
    {"Q", 12},
    {"W", 13},
    {"E", 14},
    {"R", 15},
    {"T", 17},
    {"Y", 16},
    {"U", 32},
    {"I", 34},
    {"O", 31},
    {"P", 35},
    {"[", 33},
    {"]", 30},
    {"\\", 42, 1.1},
});
constexpr auto kRow3 = std::to_array<VisualKey>({
    {"⇪", 57, 1.5},
    {"A", 0},
    {"S", 1},
    {"D", 2},
    {"F", 3},
    {"G", 5},
    {"H", 4},
    {"J", 38},
    {"K", 40},
    {"L", 37},
    {";", 41},
    {"'", 39},
    {"⏎", 36, 1.6},
});
constexpr auto kRow4 = std::to_array<VisualKey>({
    {"⇧", 56, 1.8},
    {"Z", 6},
    {"X", 7},
    {"C", 8},
    {"V", 9},
    {"B", 11},
    {"N", 45},
    {"M", 46},
    {",", 43},
    {".", 47},
    {"/", 44},
    {"⇧", 60, 1.8},
});
constexpr auto kRow5 = std::to_array<VisualKey>({
    {"⌃", 59, 1.1},
    {"⌥", 58, 1.1},
    {"⌘", 55, 1.3},
    {"SPACE", 49, 5.5},
    {"⌘", 54, 1.3},
    {"⌥", 61, 1.1},
});
constexpr std::array<std::span<const VisualKey>, miniKeyboard::kRowCount> kRows{kRow1, kRow2, kRow3, kRow4,
                                                                                kRow5};

double unitsOf(std::span<const VisualKey> keys)
{
    return std::accumulate(keys.begin(), keys.end(), 0.0,
                           [](double sum, const VisualKey& key) { return sum + key.widthRatio; });
}

double gapsOf(std::span<const VisualKey> keys)
{
    return miniKeyboard::kKeyGap * static_cast<double>(keys.size() - 1);
}

} // namespace

std::string VisualKey::id() const
{
    return std::to_string(code).append("_").append(label);
}

double VisualKey::labelSize() const
{
    const auto characters = std::count_if(label.begin(), label.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    });
    return characters < 3 ? 8.0 : 6.5;
}

namespace miniKeyboard {

std::span<const VisualKey> row(int index)
{
    return kRows.at(static_cast<std::size_t>(index));
}

double unitWidth(std::span<const VisualKey> keys, double available)
{
    return std::clamp((available - gapsOf(keys)) / unitsOf(keys), 0.0, kLargestUnit);
}

double fullWidth()
{
    const auto widths = [](std::span<const VisualKey> keys) {
        return unitsOf(keys) * kLargestUnit + gapsOf(keys);
    };
    double widest = 0;
    for (const auto& keys : kRows) {
        widest = std::max(widest, widths(keys));
    }
    return widest + 2 * kPadding;
}

double fullHeight()
{
    return kRowCount * kKeyHeight + (kRowCount - 1) * kRowGap + 2 * kPadding;
}

} // namespace miniKeyboard
} // namespace tocca::ui
