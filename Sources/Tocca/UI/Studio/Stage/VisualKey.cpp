#include "UI/Studio/Stage/VisualKey.h"

#include "Platform/KeyCodes.h"

#include <algorithm>
#include <numeric>

namespace tocca::ui {

namespace key = platform::key;

namespace {

constexpr auto kRow1 = std::to_array<VisualKey>({
    {"esc", key::kEscape},
    {"1", key::k1},
    {"2", key::k2},
    {"3", key::k3},
    {"4", key::k4},
    {"5", key::k5},
    {"6", key::k6},
    {"7", key::k7},
    {"8", key::k8},
    {"9", key::k9},
    {"0", key::k0},
    {"-", key::kMinus},
    {"=", key::kEqual},
    {"⌫", key::kDelete, 1.5},
});
constexpr auto kRow2 = std::to_array<VisualKey>({
    {"⇥", key::kTab, 1.3},
    {"Q", key::kQ},
    {"W", key::kW},
    {"E", key::kE},
    {"R", key::kR},
    {"T", key::kT},
    {"Y", key::kY},
    {"U", key::kU},
    {"I", key::kI},
    {"O", key::kO},
    {"P", key::kP},
    {"[", key::kLeftBracket},
    {"]", key::kRightBracket},
    {"\\", key::kBackslash, 1.1},
});
constexpr auto kRow3 = std::to_array<VisualKey>({
    {"⇪", key::kCapsLock, 1.5},
    {"A", key::kA},
    {"S", key::kS},
    {"D", key::kD},
    {"F", key::kF},
    {"G", key::kG},
    {"H", key::kH},
    {"J", key::kJ},
    {"K", key::kK},
    {"L", key::kL},
    {";", key::kSemicolon},
    {"'", key::kQuote},
    {"⏎", key::kReturn, 1.6},
});
constexpr auto kRow4 = std::to_array<VisualKey>({
    {"⇧", key::kLeftShift, 1.8},
    {"Z", key::kZ},
    {"X", key::kX},
    {"C", key::kC},
    {"V", key::kV},
    {"B", key::kB},
    {"N", key::kN},
    {"M", key::kM},
    {",", key::kComma},
    {".", key::kPeriod},
    {"/", key::kSlash},
    {"⇧", key::kRightShift, 1.8},
});
constexpr auto kRow5 = std::to_array<VisualKey>({
    {"⌃", key::kLeftControl, 1.1},
    {"⌥", key::kLeftOption, 1.1},
    {"⌘", key::kLeftCommand, 1.3},
    {"SPACE", key::kSpace, 5.5},
    {"⌘", key::kRightCommand, 1.3},
    {"⌥", key::kRightOption, 1.1},
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
