#pragma once

#include <string>
#include <string_view>

namespace tocca {

/// A text as it is searched and searched for, without case and accents: "Größe", "GRÖSSE" and "grosse" all give "grosse", and it makes
/// no difference whether an accent is a character of its own.
///
/// Units: UTF-8; bytes that are not become U+FFFD. Threads: any. Source: Unicode's NFKC_Casefold, less nonspacing marks.
[[nodiscard]] std::string searchForm(std::string_view text);

} // namespace tocca
