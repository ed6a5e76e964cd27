#include "Support/SearchText.h"

#include <gtest/gtest.h>

#include <array>

namespace tocca {
namespace {

TEST(SearchText, ForgetsCaseAndAccents)
{
    struct Row {
        std::string_view text;
        std::string_view form;
    };

    constexpr auto kRows = std::to_array<Row>({
        {.text = "", .form = ""},
        {.text = "THOCK [1]", .form = "thock [1]"},
        {.text = "GRÖẞE Größe", .form = "grosse grosse"},
        {.text = "CAF\u00C9 cafe\u0301", .form = "cafe cafe"},
        {.text = "İŁŽſ", .form = "iłzs"},
        {.text = "ΆΌΣς", .form = "αοσσ"},
        {.text = "ЁҐ ԲԳ Ẩ", .form = "еґ բգ a"},
        {.text = "\u212A 機械 🎹", .form = "k 機械 🎹"},
        {.text = "A\xC3", .form = "a�"},
    });
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(searchForm(row.text), row.form);
    }
}

} // namespace
} // namespace tocca
