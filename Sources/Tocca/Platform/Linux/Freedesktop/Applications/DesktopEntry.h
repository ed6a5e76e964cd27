#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::platform::linux {

/// The main group of a desktop entry file. Errors: lines that cannot be understood are skipped.
class DesktopEntry {
public:
    explicit DesktopEntry(std::string_view text);

    /// The value of `key` without its escapes.
    [[nodiscard]] std::optional<std::string> text(const std::string& key) const;

    /// The value of `key` in the first of `locales` that has one, else the value without a locale.
    [[nodiscard]] std::optional<std::string> localizedText(const std::string& key,
                                                           const std::vector<std::string>& locales) const;

private:
    std::map<std::string, std::string, std::less<>> values_;
};

/// The entry in a file; nothing when it cannot be read.
[[nodiscard]] std::optional<DesktopEntry> readDesktopEntry(const std::filesystem::path& path);

/// The names under which a locale's texts are looked for, best first: "de_AT@euro" gives itself, "de_AT", "de@euro" and "de".
[[nodiscard]] std::vector<std::string> localeVariants(std::string_view locale);

/// The same for the language of this process's messages.
[[nodiscard]] std::vector<std::string> userLocales();

/// `value` with the escapes that a desktop entry needs.
[[nodiscard]] std::string escapedText(std::string_view value);

/// `argument` quoted and escaped as one argument of an `Exec` line.
[[nodiscard]] std::string escapedArgument(std::string_view argument);

} // namespace tocca::platform::linux
