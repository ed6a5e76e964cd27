#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tocca {

/// Makes text from outside fit to be shown in one line.
///
/// Line breaks and tabs become spaces; other control characters, those that reorder bidirectional text, and bytes that are not
/// UTF-8 become U+FFFD; text of more than `mostCodePoints` is cut and ends with an ellipsis.
[[nodiscard]] std::string displayText(std::string_view bytes, std::size_t mostCodePoints = 256);

} // namespace tocca
