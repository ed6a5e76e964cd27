#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tocca {

/// `text` with its ASCII letters in lower case, whatever the locale.
[[nodiscard]] inline std::string lowerCased(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

} // namespace tocca
