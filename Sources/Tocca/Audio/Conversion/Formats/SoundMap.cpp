#include "Audio/Conversion/ForeignJson.h"
#include "Audio/Conversion/Formats/Formats.h"

#include "Support/LowerCase.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tocca::audio::formats {

namespace {

/// A file, or several of which one is picked.
void add(ConversionPlan& plan, const SourceTree& tree, const Json::Value& files, const Take& take)
{
    if (files.isString()) {
        addFiles(plan, tree, files.asString(), take);
    } else if (files.isArray()) {
        for (const Json::Value& file : files) {
            if (file.isString()) {
                addFiles(plan, tree, file.asString(), take);
            }
        }
    }
}

std::optional<ConversionPlan> planFrom(const Json::Value& description, const SourceTree& tree)
{
    const Json::Value& sounds = description["sounds"];
    if (!sounds.isObject()) {
        return std::nullopt;
    }
    ConversionPlan plan{.format = "files for each key, down and up",
                        .name = textMember(description, "name").value_or(""),
                        .takes = {},
                        .remarks = {}};
    for (const std::string& key : sounds.getMemberNames()) {
        Take take{.file = {},
                  .slice = {},
                  .role = roleOfKeyName(key),
                  .direction = KeyStrokeAction::down,
                  .key = key};
        const Json::Value& sound = sounds[key];
        if (!sound.isObject()) {
            add(plan, tree, sound, take);
            continue;
        }
        add(plan, tree, sound["down"], take);
        take.direction = KeyStrokeAction::up;
        add(plan, tree, sound["up"], take);
    }
    return plan;
}

} // namespace

std::optional<ConversionPlan> soundMap(const SourceTree& tree)
{
    for (const std::string& path : tree.files()) {
        if (path.find('/') != std::string::npos || !lowerCased(path).ends_with(".json")) {
            continue;
        }
        const auto text = tree.text(path, kLargestDescription);
        const auto description = text ? parseForeignJson(*text) : std::nullopt;
        auto plan = description ? planFrom(*description, tree) : std::nullopt;
        if (plan) {
            return plan;
        }
    }
    return std::nullopt;
}

} // namespace tocca::audio::formats
