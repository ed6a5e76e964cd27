#include "Audio/Conversion/Formats/Formats.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <utility>

namespace tocca::audio::formats {

namespace {

namespace fs = std::filesystem;

std::string stemOf(const std::string& path)
{
    return fs::path(path).stem().string();
}

/// "1e-1": the key 0x1E is pressed.
std::optional<Take> takeOfNumberedFile(const std::string& path)
{
    constexpr int kHexadecimal = 16;
    const std::string stem = stemOf(path);
    const std::size_t dash = stem.find('-');
    if (!isSoundFile(path) || path.find('/') != std::string::npos || dash == std::string::npos || dash == 0 ||
        dash > 3 || (stem.substr(dash) != "-0" && stem.substr(dash) != "-1")) {
        return std::nullopt;
    }
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(stem.data(), stem.data() + dash, code, kHexadecimal);
    if (error != std::errc() || end != stem.data() + dash) {
        return std::nullopt;
    }
    return Take{.file = path,
                .slice = {},
                .role = roleOfEventCode(code),
                .direction = stem.ends_with('1') ? KeyStrokeAction::down : KeyStrokeAction::up,
                .key = stem};
}

/// The kind of key that a path names nearest to its end; "key" and the like say nothing against a folder that says more.
KeyRole roleIn(const std::string& path)
{
    for (fs::path at = fs::path(path).replace_extension(); !at.empty(); at = at.parent_path()) {
        if (const auto role = roleNamedBy(at.filename().string()); role && *role != KeyRole::Typing) {
            return *role;
        }
    }
    return KeyRole::Typing;
}

KeyStrokeAction directionIn(const std::string& path)
{
    for (fs::path at = fs::path(path).replace_extension(); !at.empty(); at = at.parent_path()) {
        if (const auto direction = directionNamedBy(at.filename().string())) {
            return *direction;
        }
    }
    return KeyStrokeAction::down;
}

} // namespace

std::optional<ConversionPlan> roleFolders(const SourceTree& tree)
{
    ConversionPlan plan{.format = "folders for presses and releases, or for kinds of keys",
                        .name = {},
                        .takes = {},
                        .remarks = {}};
    std::set<std::string> directions;
    std::set<std::string> roles;
    for (const std::string& folder : tree.topFolders()) {
        if (roleNamedBy(folder)) {
            roles.insert(folder);
        } else if (directionNamedBy(folder)) {
            directions.insert(folder);
        }
    }
    const bool hasPresses = std::any_of(directions.begin(), directions.end(), [](const std::string& folder) {
        return directionNamedBy(folder) == KeyStrokeAction::down;
    });
    if (!hasPresses && (roles.empty() || isPlainPack(tree))) {
        return std::nullopt;
    }
    for (const std::string& path : tree.files()) {
        const std::string top = path.substr(0, path.find('/'));
        if (!isSoundFile(path) || (!directions.contains(top) && !roles.contains(top))) {
            continue;
        }
        Take take{.file = path,
                  .slice = {},
                  .role = KeyRole::Typing,
                  .direction = KeyStrokeAction::down,
                  .key = path};
        take.role = roleIn(path);
        take.direction = directionIn(path);
        plan.takes.push_back(std::move(take));
    }
    return plan.takes.empty() ? std::nullopt : std::optional(std::move(plan));
}

std::optional<ConversionPlan> numberedFiles(const SourceTree& tree)
{
    ConversionPlan plan{
        .format = "files called by the codes of keys", .name = {}, .takes = {}, .remarks = {}};
    std::size_t others = 0;
    bool hasPresses = false;
    for (const std::string& path : tree.files()) {
        if (auto take = takeOfNumberedFile(path)) {
            hasPresses = hasPresses || take->direction == KeyStrokeAction::down;
            plan.takes.push_back(std::move(*take));
        } else if (isSoundFile(path)) {
            ++others;
            plan.remarks.push_back(path + ": its name is no key's code");
        }
    }
    constexpr std::size_t kFewest = 2; // a single one may be called so by chance
    return hasPresses && plan.takes.size() >= kFewest && plan.takes.size() >= others
               ? std::optional(std::move(plan))
               : std::nullopt;
}

} // namespace tocca::audio::formats
