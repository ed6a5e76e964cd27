#include "Audio/Conversion/Formats/Formats.h"

#include "Audio/SoundSlot.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string>
#include <utility>

namespace tocca::audio::formats {

namespace {

bool isAtTop(std::string_view path)
{
    return path.find('/') == std::string_view::npos;
}

struct Pattern {
    std::string before;
    int first = 0;
    int last = 0;
    std::string behind;
};

std::optional<int> number(std::string_view digits)
{
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() && value >= 0 ? std::optional(value)
                                                                                      : std::nullopt;
}

std::optional<Pattern> patternIn(const std::string& name)
{
    const std::size_t open = name.find('{');
    const std::size_t dash = name.find('-', std::min(open, name.size()));
    const std::size_t close = name.find('}', std::min(dash, name.size()));
    if (open == std::string::npos || dash == std::string::npos || close == std::string::npos) {
        return std::nullopt;
    }
    const auto first = number(std::string_view(name).substr(open + 1, dash - open - 1));
    const auto last = number(std::string_view(name).substr(dash + 1, close - dash - 1));
    if (!first || !last) {
        return std::nullopt;
    }
    return Pattern{name.substr(0, open), *first, *last, name.substr(close + 1)};
}

void addFile(ConversionPlan& plan, const SourceTree& tree, const std::string& name, Take take)
{
    if (auto file = tree.find(name)) {
        take.file = std::move(*file);
        plan.takes.push_back(std::move(take));
    } else {
        plan.remarks.push_back(take.key + ": there is no file “" + name + "”");
    }
}

} // namespace

bool isSoundFile(std::string_view path)
{
    constexpr std::array<std::string_view, 3> kEndings{".wav", ".mp3", ".ogg"};
    const std::string lower = lowerCased(path);
    return std::any_of(kEndings.begin(), kEndings.end(),
                       [&](auto ending) { return lower.ends_with(ending); });
}

bool isPlainPack(const SourceTree& tree)
{
    const auto files = tree.files();
    return std::any_of(files.begin(), files.end(), [](const std::string& path) {
        return isAtTop(path) && SoundSlot::fromFileName(path).has_value();
    });
}

void addFiles(ConversionPlan& plan, const SourceTree& tree, const std::string& name, const Take& take)
{
    constexpr int kMostFiles = 100;
    if (name.empty()) {
        return;
    }
    const auto pattern = patternIn(name);
    if (!pattern || tree.find(name)) {
        addFile(plan, tree, name, take);
        return;
    }
    if (pattern->last < pattern->first || pattern->last - pattern->first >= kMostFiles) {
        plan.remarks.push_back(take.key + ": “" + name + "” stands for no reasonable number of files");
        return;
    }
    for (int i = pattern->first; i <= pattern->last; ++i) {
        addFile(plan, tree, pattern->before + std::to_string(i) + pattern->behind, take);
    }
}

std::optional<ConversionPlan> recognise(const SourceTree& tree)
{
    const auto files = tree.files();
    const bool isNamedAsOurs = std::any_of(files.begin(), files.end(), [](const std::string& path) {
        const std::string lower = lowerCased(path);
        return isAtTop(path) && isSoundFile(path) &&
               (lower.starts_with("press_") || lower.starts_with("release_"));
    });
    if (isNamedAsOurs) {
        return std::nullopt;
    }
    for (const auto& format : {keyDefinitions, timedDefinitions, soundMap, roleFolders, numberedFiles}) {
        if (auto plan = format(tree)) {
            return plan;
        }
    }
    return std::nullopt;
}

} // namespace tocca::audio::formats
