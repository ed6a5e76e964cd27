#include "Support/DisplayText.h"

#include <gtest/gtest.h>

#include <string>

namespace tocca {
namespace {

TEST(DisplayText, ShowsOneLineWhateverTheBytesAre)
{
    struct Row {
        const char* name;
        std::string bytes;
        std::string shown;
    };

    const Row rows[] = {
        {.name = "nothing", .bytes = "", .shown = ""},
        {.name = "every length of UTF-8", .bytes = "a é € 🎹", .shown = "a é € 🎹"},
        {.name = "line breaks", .bytes = "a\nb\r\tc\u2028d\u0085e", .shown = "a b  c d e"},
        {.name = "controls", .bytes = std::string("a\0b\x1B\x7F\u009B", 7), .shown = "a�b���"},
        {.name = "reordering", .bytes = "a\u202Egnp\u2066\u200F\u061C", .shown = "a�gnp���"},
        {.name = "joined symbols stay", .bytes = "👨‍👩", .shown = "👨‍👩"},
        {.name = "stray bytes", .bytes = "a\x80\xFF\xC0z", .shown = "a���z"},
        {.name = "cut short", .bytes = "a\xE2\x82", .shown = "a�"},
        {.name = "cut short by a letter", .bytes = "\xF0\x9F\x8Ez", .shown = "�z"},
        {.name = "overlong", .bytes = "\xC1\x81\xE0\x80\x80", .shown = "�����"},
        {.name = "surrogate", .bytes = "\xED\xA0\x80", .shown = "���"},
        {.name = "beyond the last", .bytes = "\xF4\x90\x80\x80", .shown = "����"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(displayText(row.bytes), row.shown);
    }
}

TEST(DisplayText, CutsByCodePoints)
{
    EXPECT_EQ(displayText("äöü", 3), "äöü");
    EXPECT_EQ(displayText("äöüß", 3), "äö…");
    EXPECT_EQ(displayText(std::string(300, 'x')), std::string(255, 'x') + "…");
}

} // namespace
} // namespace tocca
