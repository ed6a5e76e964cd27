#include "Audio/SoundProfile.h"

#include "Platform/KeyCodes.h"

#include <cstddef>
#include <initializer_list>

namespace tocca::audio {

namespace key = platform::key;

namespace {

constexpr std::size_t kPanCodes = key::kForwardDelete + 1;

constexpr std::array<float, kPanCodes> makePanTable()
{
    std::array<float, kPanCodes> table{};
    const auto place = [&table](float pan, std::initializer_list<std::size_t> codes) {
        for (const std::size_t code : codes) {
            table[code] = pan;
        }
    };
    place(-0.55F, {key::kA, key::kZ, key::kQ, key::k1, key::k2, key::kTab, key::kGrave, key::kLeftShift,
                   key::kCapsLock, key::kLeftControl});
    place(-0.28F, {key::kS, key::kD, key::kX, key::kC, key::kW, key::kE, key::k3, key::k4});
    place(+0.28F, {key::k7, key::k8, key::kU, key::kI, key::kJ, key::kK, key::kM});
    place(+0.55F, {key::kEqual, key::kMinus, key::kRightBracket, key::kO, key::kLeftBracket, key::kP,
                   key::kReturn, key::kL, key::kQuote, key::kSemicolon, key::kBackslash, key::kDelete,
                   key::kRightShift, key::kKeypadEnter, key::kForwardDelete});
    return table;
}

constexpr std::array<float, kPanCodes> kPans = makePanTable();

} // namespace

KeyCategory KeyCategory::from(std::uint16_t keyCode) noexcept
{
    switch (keyCode) {
    case key::kSpace:
        return spacebar;
    case key::kReturn:
    case key::kKeypadEnter:
        return enter;
    case key::kDelete:
    case key::kForwardDelete:
        return backspace;
    case key::kTab:
        return modifier;
    default:
        return keyCode >= key::kEscape && keyCode <= key::kRightControl ? modifier : standard;
    }
}

float KeyCategory::spatialPan(std::uint16_t keyCode) noexcept
{
    return keyCode < kPanCodes ? kPans[keyCode] : 0.0F;
}

constexpr std::array<SwitchType::Row, SwitchType::allCases.size()> SwitchType::rows{{
    {"Holy Panda", "Thocky • Authentic Holy Panda switch recordings with deep resonance", "sparkles",
     "holy-panda"},
    {"Cherry MX Blue", "Clicky • Genuine Cherry MX Blue acoustic actuation clicks", "bolt.fill", "mx-blue"},
    {"Cherry MX Brown", "Tactile • Authentic Cherry MX Brown bump & dampened clacks",
     "circle.grid.cross.fill", "mx-brown"},
    {"NK Cream", "Linear • Genuine NovelKeys Cream smooth linear travel", "waveform.path.ecg", "nk-cream"},
    {"Typewriter", "Vintage • Authentic mechanical typewriter key strikes & return", "character.cursor.ibeam",
     "typewriter"},
}};

} // namespace tocca::audio
