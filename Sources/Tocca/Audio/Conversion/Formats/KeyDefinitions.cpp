#include "Audio/Conversion/ForeignJson.h"
#include "Audio/Conversion/Formats/Formats.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tocca::audio::formats {

namespace {

struct Key {
    std::uint32_t code;
    KeyStrokeAction direction;
};

/// "57", or "57-up" for its release.
std::optional<Key> keyOf(std::string_view text)
{
    constexpr std::string_view kUp = "-up";
    Key key{0, KeyStrokeAction::down};
    if (text.ends_with(kUp)) {
        key.direction = KeyStrokeAction::up;
        text.remove_suffix(kUp.size());
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), key.code);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(key) : std::nullopt;
}

void addSlice(ConversionPlan& plan, const std::string& file, const Json::Value& times, Take take)
{
    if (!times.isArray() || times.size() < 2 || !times[0U].isNumeric() || !times[1U].isNumeric()) {
        plan.remarks.push_back(take.key + ": its times are not two numbers");
        return;
    }
    take.file = file;
    take.slice = Slice{.startMs = times[0U].asDouble(), .lengthMs = times[1U].asDouble()};
    plan.takes.push_back(std::move(take));
}

void addDefinition(ConversionPlan& plan, const SourceTree& tree, const std::optional<std::string>& recording,
                   const Json::Value& value, const Take& take)
{
    if (value.isNull()) {
        return; // a key that the pack knows and leaves silent
    }
    if (value.isString()) {
        addFiles(plan, tree, value.asString(), take);
    } else if (recording) {
        addSlice(plan, *recording, value, take);
    } else {
        plan.remarks.push_back(take.key + ": it names no file");
    }
}

} // namespace

std::optional<ConversionPlan> keyDefinitions(const SourceTree& tree)
{
    const auto file = tree.find("config.json");
    const auto text = file ? tree.text(*file, kLargestDescription) : std::nullopt;
    const auto config = text ? parseForeignJson(*text) : std::nullopt;
    if (!config) {
        return std::nullopt;
    }
    const auto type = textMember(*config, "key_define_type");
    if (type != "single" && type != "multi") {
        return std::nullopt;
    }
    const bool isSliced = type == "single";
    ConversionPlan plan{.format = isSliced ? "one recording with a time for each key" : "a file for each key",
                        .name = textMember(*config, "name").value_or(""),
                        .takes = {},
                        .remarks = {}};
    const std::string sound = textMember(*config, "sound").value_or("");
    std::optional<std::string> recording;
    if (isSliced) {
        recording = tree.find(sound);
        if (!recording) {
            plan.remarks.push_back("sound: there is no file “" + sound + "”");
        }
    }
    const Json::Value& defines = (*config)["defines"];
    for (const std::string& name : defines.isObject() ? defines.getMemberNames() : Json::Value::Members()) {
        const auto key = keyOf(name);
        if (!key) {
            plan.remarks.push_back(name + ": this is no key's code");
            continue;
        }
        addDefinition(plan, tree, recording, defines[name],
                      {.file = {},
                       .slice = {},
                       .role = roleOfScanCode(key->code),
                       .direction = key->direction,
                       .key = name});
    }
    // In the later version these are the sounds of all keys that have none of their own.
    const bool hasCommonSounds =
        (*config)["version"].isNumeric() ? (*config)["version"].asDouble() >= 2 : config->isMember("soundup");
    if (!isSliced && hasCommonSounds) {
        addFiles(plan, tree, sound,
                 {.file = {},
                  .slice = {},
                  .role = KeyRole::Typing,
                  .direction = KeyStrokeAction::down,
                  .key = "sound"});
    }
    addFiles(plan, tree, textMember(*config, "soundup").value_or(""),
             {.file = {},
              .slice = {},
              .role = KeyRole::Typing,
              .direction = KeyStrokeAction::up,
              .key = "soundup"});
    return plan;
}

std::optional<ConversionPlan> timedDefinitions(const SourceTree& tree)
{
    const auto file = tree.find("config.json");
    const auto text = file ? tree.text(*file, kLargestDescription) : std::nullopt;
    const auto config = text ? parseForeignJson(*text) : std::nullopt;
    if (!config || !(*config)["definition_method"].isString() || !(*config)["definitions"].isObject()) {
        return std::nullopt;
    }
    ConversionPlan plan{.format = "recordings with times for each key's press and release",
                        .name = textMember(*config, "name").value_or(""),
                        .takes = {},
                        .remarks = {}};
    const std::string common = textMember(*config, "audio_file").value_or("");
    const Json::Value& definitions = (*config)["definitions"];
    for (const std::string& name : definitions.getMemberNames()) {
        const Json::Value& definition = definitions[name];
        if (!definition.isObject()) {
            continue;
        }
        const std::string sound = textMember(definition, "audio_file").value_or(common);
        const Json::Value& timing = definition["timing"];
        Take take{.file = {},
                  .slice = {},
                  .role = roleOfKeyName(name),
                  .direction = KeyStrokeAction::down,
                  .key = name};
        if (!timing.isArray()) {
            addFiles(plan, tree, sound, take);
            continue;
        }
        for (const auto direction : {KeyStrokeAction::down, KeyStrokeAction::up}) {
            const Json::Value& times = timing[direction == KeyStrokeAction::down ? 0U : 1U];
            if (times.isNull()) {
                continue;
            }
            if (!times.isArray() || times.size() < 2 || !times[0U].isNumeric() || !times[1U].isNumeric()) {
                plan.remarks.push_back(name + ": its times are not two numbers");
                continue;
            }
            take.direction = direction;
            take.slice = Slice{.startMs = times[0U].asDouble(),
                               .lengthMs = times[1U].asDouble() - times[0U].asDouble()};
            addFiles(plan, tree, sound, take);
        }
    }
    return plan;
}

} // namespace tocca::audio::formats
