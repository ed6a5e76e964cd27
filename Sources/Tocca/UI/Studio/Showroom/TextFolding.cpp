#include "UI/Studio/Showroom/TextFolding.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tocca::ui {
namespace {

/// Capitals whose small letters lie at one distance. Of alternating letters only every second is a capital, beginning with the first.
struct Capitals {
    char32_t first;
    char32_t last;
    int distance;
    bool alternate = false;
};

// In ascending order.
constexpr auto kCapitals = std::to_array<Capitals>({
    {.first = U'A', .last = U'Z', .distance = 32},
    {.first = 0xC0, .last = 0xD6, .distance = 32},
    {.first = 0xD8, .last = 0xDE, .distance = 32},
    {.first = 0x100, .last = 0x12E, .distance = 1, .alternate = true},
    {.first = 0x130, .last = 0x130, .distance = 'i' - 0x130},
    {.first = 0x132, .last = 0x136, .distance = 1, .alternate = true},
    {.first = 0x139, .last = 0x147, .distance = 1, .alternate = true},
    {.first = 0x14A, .last = 0x176, .distance = 1, .alternate = true},
    {.first = 0x178, .last = 0x178, .distance = 0xFF - 0x178},
    {.first = 0x179, .last = 0x17D, .distance = 1, .alternate = true},
    {.first = 0x17F, .last = 0x17F, .distance = 's' - 0x17F},
    {.first = 0x1CD, .last = 0x1DB, .distance = 1, .alternate = true},
    {.first = 0x1DE, .last = 0x1EE, .distance = 1, .alternate = true},
    {.first = 0x1F8, .last = 0x21E, .distance = 1, .alternate = true},
    {.first = 0x222, .last = 0x232, .distance = 1, .alternate = true},
    {.first = 0x246, .last = 0x24E, .distance = 1, .alternate = true},
    {.first = 0x386, .last = 0x386, .distance = 38},
    {.first = 0x388, .last = 0x38A, .distance = 37},
    {.first = 0x38C, .last = 0x38C, .distance = 64},
    {.first = 0x38E, .last = 0x38F, .distance = 63},
    {.first = 0x391, .last = 0x3A1, .distance = 32},
    {.first = 0x3A3, .last = 0x3AB, .distance = 32},
    {.first = 0x3C2, .last = 0x3C2, .distance = 1},
    {.first = 0x3D8, .last = 0x3EE, .distance = 1, .alternate = true},
    {.first = 0x400, .last = 0x40F, .distance = 80},
    {.first = 0x410, .last = 0x42F, .distance = 32},
    {.first = 0x460, .last = 0x480, .distance = 1, .alternate = true},
    {.first = 0x48A, .last = 0x4BE, .distance = 1, .alternate = true},
    {.first = 0x4C0, .last = 0x4C0, .distance = 15},
    {.first = 0x4C1, .last = 0x4CD, .distance = 1, .alternate = true},
    {.first = 0x4D0, .last = 0x52E, .distance = 1, .alternate = true},
    {.first = 0x531, .last = 0x556, .distance = 48},
    {.first = 0x1E00, .last = 0x1E94, .distance = 1, .alternate = true},
    {.first = 0x1EA0, .last = 0x1EFE, .distance = 1, .alternate = true},
    {.first = 0x212A, .last = 0x212A, .distance = 'k' - 0x212A},
    {.first = 0x212B, .last = 0x212B, .distance = 0xE5 - 0x212B},
    {.first = 0xFF21, .last = 0xFF3A, .distance = 32},
});

char32_t smallLetter(char32_t c)
{
    const auto* const range =
        std::lower_bound(kCapitals.begin(), kCapitals.end(), c,
                         [](const Capitals& capitals, char32_t wanted) { return capitals.last < wanted; });
    if (range == kCapitals.end() || c < range->first || (range->alternate && (c - range->first) % 2 != 0)) {
        return c;
    }
    return static_cast<char32_t>(static_cast<int>(c) + range->distance);
}

bool isFollower(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Appends the folded form of a character of two or three bytes.
void appendFolded(std::string_view bytes, std::string& folded)
{
    const auto bitsOf = [bytes](std::size_t i, unsigned mask) -> char32_t {
        return static_cast<unsigned char>(bytes[i]) & mask;
    };
    const char32_t c = bytes.size() == 2 ? bitsOf(0, 0x1F) << 6U | bitsOf(1, 0x3F)
                                         : bitsOf(0, 0x0F) << 12U | bitsOf(1, 0x3F) << 6U | bitsOf(2, 0x3F);
    if (c == U'ß' || c == U'ẞ') {
        folded += "ss";
        return;
    }
    const char32_t small = smallLetter(c);
    if (small == c) {
        folded += bytes;
    } else if (small < 0x80) {
        folded += static_cast<char>(small);
    } else if (small < 0x800) {
        folded += static_cast<char>(0xC0U | small >> 6U);
        folded += static_cast<char>(0x80U | (small & 0x3FU));
    } else {
        folded += static_cast<char>(0xE0U | small >> 12U);
        folded += static_cast<char>(0x80U | (small >> 6U & 0x3FU));
        folded += static_cast<char>(0x80U | (small & 0x3FU));
    }
}

/// How many bytes belong together at the start of `text`; 1 for what is not UTF-8.
std::size_t characterLength(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 1;
    const bool isWhole = length <= text.size() &&
                         std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length),
                                     [](char byte) { return isFollower(byte); });
    return isWhole ? length : 1;
}

} // namespace

std::string foldedCase(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 2 || length == 3) {
            appendFolded(text.substr(0, length), folded);
        } else if (length == 1 && text.front() >= 'A' && text.front() <= 'Z') {
            folded += static_cast<char>(text.front() + ('a' - 'A'));
        } else {
            folded += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    return folded;
}

} // namespace tocca::ui
