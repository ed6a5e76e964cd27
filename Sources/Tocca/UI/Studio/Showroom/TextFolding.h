#pragma once

#include <string>
#include <string_view>

namespace tocca::ui {

/// Makes texts that differ in case only equal: "Größe" and "GRÖSSE" both become "grösse".
///
/// Latin, Greek, Cyrillic and Armenian letters are folded one by one, independently of the locale; ß becomes "ss". Accents stay, and
/// a letter with its accent as a separate character stays different from the one character. Other text is left as it is.
/// Units: UTF-8; bytes that are not are kept.
/// Threads: any.
/// Source: Unicode's simple case folding, as far as the scripts above go.
[[nodiscard]] std::string foldedCase(std::string_view text);

} // namespace tocca::ui
