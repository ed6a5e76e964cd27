#include "Support/DisplayText.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <cstdint>

namespace tocca {
namespace {

constexpr UChar32 kReplacement = 0xFFFD;

UChar32 shown(UChar32 character)
{
    const auto category = u_charType(character);
    const bool isControl = category == U_CONTROL_CHAR;
    if (category == U_LINE_SEPARATOR || category == U_PARAGRAPH_SEPARATOR ||
        (isControl && u_isUWhiteSpace(character))) {
        return ' ';
    }
    return isControl || u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL) ? kReplacement : character;
}

} // namespace

std::string displayText(std::string_view bytes, std::size_t mostCodePoints)
{
    auto text = icu::UnicodeString::fromUTF8(bytes);
    const auto most = static_cast<std::int32_t>(mostCodePoints);
    if (text.hasMoreChar32Than(0, text.length(), most)) {
        text.truncate(text.moveIndex32(0, most - 1));
        text.append(u'…');
    }
    icu::UnicodeString line;
    for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        line.append(shown(text.char32At(i)));
    }
    std::string result;
    return line.toUTF8String(result);
}

} // namespace tocca
