#include "UI/Popover/FileUrl.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string>

namespace tocca::ui {
namespace {

constexpr std::string_view kScheme = "file:";

std::optional<std::string> decodePercents(std::string_view text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded += text[i];
            continue;
        }
        const std::string_view digits = text.substr(i + 1, 2);
        unsigned code = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (error != std::errc() || end != text.data() + i + 3 || code == 0) {
            return std::nullopt;
        }
        decoded += static_cast<char>(code);
        i += 2;
    }
    return decoded;
}

} // namespace

bool isFileUrl(std::string_view url) noexcept
{
    return url.size() >= kScheme.size() &&
           std::equal(kScheme.begin(), kScheme.end(), url.begin(),
                      [](char a, char b) { return a == std::tolower(static_cast<unsigned char>(b)); });
}

std::optional<std::filesystem::path> pathOfFileUrl(std::string_view url)
{
    if (!isFileUrl(url)) {
        return std::nullopt;
    }
    url.remove_prefix(kScheme.size());
    if (url.starts_with("//")) {
        url.remove_prefix(2);
        const std::size_t root = std::min(url.find('/'), url.size());
        const std::string_view host = url.substr(0, root);
        if (!host.empty() && host != "localhost") {
            return std::nullopt;
        }
        url.remove_prefix(root);
    }
    url = url.substr(0, url.find_first_of("?#"));
    const std::optional<std::string> path = decodePercents(url);
    if (!path || !path->starts_with('/')) {
        return std::nullopt;
    }
    return std::filesystem::path(*path);
}

} // namespace tocca::ui
