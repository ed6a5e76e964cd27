#include "Support/SearchText.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <cstdint>

namespace tocca {

std::string searchForm(std::string_view text)
{
    UErrorCode error = U_ZERO_ERROR; // stays so: the library brings its tables with it
    const auto caseless = icu::Normalizer2::getNFKCCasefoldInstance(error)->normalize(
        icu::UnicodeString::fromUTF8(text), error);
    const auto decomposed = icu::Normalizer2::getNFDInstance(error)->normalize(caseless, error);
    icu::UnicodeString bare;
    for (std::int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
        const UChar32 character = decomposed.char32At(i);
        if (u_charType(character) != U_NON_SPACING_MARK) {
            bare.append(character);
        }
    }
    std::string form;
    return bare.toUTF8String(form);
}

} // namespace tocca
