#include "Support/DisplayText.h"

#include <algorithm>
#include <array>

namespace tocca {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD
constexpr std::string_view kEllipsis = "…";

struct Decoded {
    char32_t codePoint;
    std::size_t length;
    bool isValid;
};

/// What a first byte announces: how many bytes follow, and between which bounds the next one must be. The bounds exclude
/// overlong forms, surrogates and what lies beyond U+10FFFF.
struct Lead {
    unsigned char first;
    unsigned char last;
    std::size_t following;
    unsigned char lowest;
    unsigned char highest;
};

constexpr std::array<Lead, 9> kLeads{{
    {.first = 0x00, .last = 0x7F, .following = 0, .lowest = 0x80, .highest = 0xBF},
    {.first = 0xC2, .last = 0xDF, .following = 1, .lowest = 0x80, .highest = 0xBF},
    {.first = 0xE0, .last = 0xE0, .following = 2, .lowest = 0xA0, .highest = 0xBF},
    {.first = 0xE1, .last = 0xEC, .following = 2, .lowest = 0x80, .highest = 0xBF},
    {.first = 0xED, .last = 0xED, .following = 2, .lowest = 0x80, .highest = 0x9F},
    {.first = 0xEE, .last = 0xEF, .following = 2, .lowest = 0x80, .highest = 0xBF},
    {.first = 0xF0, .last = 0xF0, .following = 3, .lowest = 0x90, .highest = 0xBF},
    {.first = 0xF1, .last = 0xF3, .following = 3, .lowest = 0x80, .highest = 0xBF},
    {.first = 0xF4, .last = 0xF4, .following = 3, .lowest = 0x80, .highest = 0x8F},
}};

Decoded decodeFirst(std::string_view bytes)
{
    const auto byteAt = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char first = byteAt(0);
    const auto* const lead = std::find_if(kLeads.begin(), kLeads.end(), [first](const Lead& row) {
        return first >= row.first && first <= row.last;
    });
    if (lead == kLeads.end()) {
        return {.codePoint = 0, .length = 1, .isValid = false};
    }
    constexpr unsigned kBitsPerFollower = 6;
    constexpr unsigned kFollowerBits = 0x3F;
    char32_t codePoint = lead->following == 0 ? first : first & (kFollowerBits >> lead->following);
    for (std::size_t i = 1; i <= lead->following; ++i) {
        const unsigned char lowest = i == 1 ? lead->lowest : 0x80;
        const unsigned char highest = i == 1 ? lead->highest : 0xBF;
        if (i == bytes.size() || byteAt(i) < lowest || byteAt(i) > highest) {
            return {.codePoint = 0, .length = i, .isValid = false};
        }
        codePoint = (codePoint << kBitsPerFollower) | (byteAt(i) & kFollowerBits);
    }
    return {.codePoint = codePoint, .length = lead->following + 1, .isValid = true};
}

bool breaksTheLine(char32_t c)
{
    return (c >= U'\t' && c <= U'\r') || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c <= 0x9F);
}

bool reordersText(char32_t c)
{
    return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

} // namespace

std::string displayText(std::string_view bytes, std::size_t mostCodePoints)
{
    std::string text;
    std::size_t endOfLastButOne = 0;
    for (std::size_t count = 0; !bytes.empty(); ++count) {
        if (count == mostCodePoints) {
            text.resize(endOfLastButOne);
            return text.append(kEllipsis);
        }
        endOfLastButOne = text.size();
        const Decoded next = decodeFirst(bytes);
        if (next.isValid && breaksTheLine(next.codePoint)) {
            text += ' ';
        } else if (!next.isValid || isControl(next.codePoint) || reordersText(next.codePoint)) {
            text += kReplacement;
        } else {
            text += bytes.substr(0, next.length);
        }
        bytes.remove_prefix(next.length);
    }
    return text;
}

} // namespace tocca
