#include "Audio/SoundProfile.h"

#include <algorithm>
#include <initializer_list>

namespace tocca::audio {

namespace {

struct SwitchRow {
    std::string_view rawValue;
    std::string_view description;
    std::string_view iconName;
    std::string_view folderName;
};

constexpr std::array<SwitchRow, SwitchType::allCases.size()> kSwitches{{
    {.rawValue = "Holy Panda",
     .description = "Thocky • Authentic Holy Panda switch recordings with deep resonance",
     .iconName = "sparkles",
     .folderName = "holy-panda"},
    {.rawValue = "Cherry MX Blue",
     .description = "Clicky • Genuine Cherry MX Blue acoustic actuation clicks",
     .iconName = "bolt.fill",
     .folderName = "mx-blue"},
    {.rawValue = "Cherry MX Brown",
     .description = "Tactile • Authentic Cherry MX Brown bump & dampened clacks",
     .iconName = "circle.grid.cross.fill",
     .folderName = "mx-brown"},
    {.rawValue = "NK Cream",
     .description = "Linear • Genuine NovelKeys Cream smooth linear travel",
     .iconName = "waveform.path.ecg",
     .folderName = "nk-cream"},
    {.rawValue = "Typewriter",
     .description = "Vintage • Authentic mechanical typewriter key strikes & return",
     .iconName = "character.cursor.ibeam",
     .folderName = "typewriter"},
}};

constexpr std::size_t kPanCodes = 118;

constexpr std::array<float, kPanCodes> makePanTable()
{
    std::array<float, kPanCodes> table{};
    const auto place = [&table](float pan, std::initializer_list<std::size_t> codes) {
        for (const std::size_t code : codes) {
            table[code] = pan;
        }
    };
    place(-0.55F, {0, 6, 12, 18, 19, 48, 50, 56, 57, 59});
    place(-0.28F, {1, 2, 7, 8, 13, 14, 20, 21});
    place(+0.28F, {26, 28, 32, 34, 38, 40, 46});
    place(+0.55F, {24, 27, 30, 31, 33, 35, 36, 37, 39, 41, 42, 51, 60, 76, 117});
    return table;
}

constexpr std::array<float, kPanCodes> kPans = makePanTable();

} // namespace

KeyCategory KeyCategory::from(std::uint16_t keyCode) noexcept
{
    switch (keyCode) {
    case 49:
        return spacebar;
    case 36:
    case 76:
        return enter;
    case 51:
    case 117:
        return backspace;
    case 48:
        return modifier;
    default:
        return keyCode >= 53 && keyCode <= 62 ? modifier : standard;
    }
}

float KeyCategory::spatialPan(std::uint16_t keyCode) noexcept
{
    return keyCode < kPanCodes ? kPans[keyCode] : 0.0F;
}

std::optional<SwitchType> SwitchType::fromRawValue(std::string_view rawValue) noexcept
{
    const auto found = std::find_if(allCases.begin(), allCases.end(),
                                    [rawValue](SwitchType type) { return type.rawValue() == rawValue; });
    return found == allCases.end() ? std::nullopt : std::optional<SwitchType>(*found);
}

std::string_view SwitchType::rawValue() const noexcept
{
    return kSwitches[value_].rawValue;
}

std::string_view SwitchType::description() const noexcept
{
    return kSwitches[value_].description;
}

std::string_view SwitchType::iconName() const noexcept
{
    return kSwitches[value_].iconName;
}

std::string_view SwitchType::folderName() const noexcept
{
    return kSwitches[value_].folderName;
}

} // namespace tocca::audio
