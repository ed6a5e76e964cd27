#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"

#include "Platform/Linux/System/Files/LinuxFiles.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace tocca::platform::linux {

namespace {

constexpr std::string_view kMainGroup = "[Desktop Entry]";
constexpr std::string_view kBlank = " \t\r";
// What follows a backslash, and what both stand for.
constexpr std::string_view kCodes = "\\ntrs";
constexpr std::string_view kMeanings = "\\\n\t\r ";

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(kBlank);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kBlank) - begin + 1);
}

std::string unescaped(std::string_view value)
{
    std::string plain;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const bool isEscape = value[i] == '\\' && i + 1 < value.size();
        const char c = isEscape ? value[++i] : value[i];
        const std::size_t code = isEscape ? kCodes.find(c) : std::string_view::npos;
        plain += code != std::string_view::npos ? kMeanings[code] : c;
    }
    return plain;
}

} // namespace

DesktopEntry::DesktopEntry(std::string_view text)
{
    bool isInMainGroup = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) {
            isInMainGroup = line == kMainGroup;
        } else if (const std::size_t equals = line.find('=');
                   isInMainGroup && !line.starts_with('#') && equals != std::string_view::npos) {
            values_.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
        }
    }
}

std::optional<std::string> DesktopEntry::text(const std::string& key) const
{
    const auto value = values_.find(key);
    return value != values_.end() ? std::optional(unescaped(value->second)) : std::nullopt;
}

std::optional<std::string> DesktopEntry::localizedText(const std::string& key,
                                                       const std::vector<std::string>& locales) const
{
    for (const std::string& locale : locales) {
        std::string localized = key;
        localized.append("[").append(locale).append("]");
        if (auto value = text(localized)) {
            return value;
        }
    }
    return text(key);
}

std::optional<DesktopEntry> readDesktopEntry(const std::filesystem::path& path)
{
    constexpr std::size_t kLargest = std::size_t{1} << 20U;
    const auto bytes = LinuxFiles().read(path, kLargest);
    if (!bytes) {
        return std::nullopt;
    }
    const auto& content = *bytes.value();
    return DesktopEntry({reinterpret_cast<const char*>(content.data()), content.size()});
}

std::vector<std::string> localeVariants(std::string_view locale)
{
    const std::size_t at = locale.find('@');
    const std::string modifier(at == std::string_view::npos ? "" : locale.substr(at));
    const std::string_view base = locale.substr(0, std::min(at, locale.find('.')));
    const std::string language(base.substr(0, base.find('_')));
    const std::string country(base.substr(language.size()));
    std::vector<std::string> variants;
    std::string whole = language + country;
    const std::string plain = whole;
    whole += modifier;
    for (const std::string& variant : {whole, plain, language + modifier, language}) {
        if (!variant.empty() && std::find(variants.begin(), variants.end(), variant) == variants.end()) {
            variants.push_back(variant);
        }
    }
    return variants;
}

std::vector<std::string> userLocales()
{
    for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const locale = std::getenv(variable); // NOLINT(concurrency-mt-unsafe)
        if (locale != nullptr && *locale != '\0') {
            return localeVariants(locale);
        }
    }
    return {};
}

std::string escapedText(std::string_view value)
{
    std::string escaped;
    for (const char c : value) {
        if (const std::size_t code = kMeanings.find(c); code != std::string_view::npos && c != ' ') {
            escaped += '\\';
            escaped += kCodes[code];
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::string escapedArgument(std::string_view argument)
{
    std::string quoted = "\"";
    for (const char c : argument) {
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos) {
            quoted += '\\';
        } else if (c == '%') {
            quoted += '%'; // alone it would begin a field code
        }
        quoted += c;
    }
    return escapedText(quoted + '"');
}

} // namespace tocca::platform::linux
