#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::platform::linux {

/// The main group of a desktop entry file. Errors: lines that make no sense are skipped.
class DesktopEntry {
public:
    explicit DesktopEntry(std::string_view text);

    /// The value of `key` without its escapes.
    [[nodiscard]] std::optional<std::string> text(const std::string& key) const;

    /// The value of `key` in the first of `locales` that has one, else in none.
    [[nodiscard]] std::optional<std::string> localizedText(const std::string& key,
                                                           const std::vector<std::string>& locales) const;

private:
    std::map<std::string, std::string, std::less<>> values_;
};

/// The entry in a file; nothing when it cannot be read.
[[nodiscard]] std::optional<DesktopEntry> readDesktopEntry(const std::filesystem::path& path);

/// The names under which a locale's texts are looked for, best first: "de_AT@euro" gives itself, "de_AT", "de@euro" and "de".
[[nodiscard]] std::vector<std::string> localeVariants(std::string_view locale);

/// The same for the messages of this process's user.
[[nodiscard]] std::vector<std::string> userLocales();

/// `value` as it stands in a desktop entry.
[[nodiscard]] std::string escapedText(std::string_view value);

/// `argument` as one argument of an `Exec` line, as it stands in the file.
[[nodiscard]] std::string escapedArgument(std::string_view argument);

} // namespace tocca::platform::linux
