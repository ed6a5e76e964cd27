#include "Audio/Conversion/ForeignJson.h"

#include <exception>
#include <memory>

namespace tocca::audio {

std::optional<Json::Value> parseForeignJson(std::string_view text)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    constexpr int kDeepest = 64;
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    Json::CharReaderBuilder builder;
    builder["allowComments"] = true;
    builder["allowTrailingCommas"] = true;
    builder["allowSingleQuotes"] = true;
    builder["allowSpecialFloats"] = true;
    builder["collectComments"] = false;
    builder["failIfExtra"] = false;
    builder["stackLimit"] = kDeepest;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &value, &errors) || !value.isObject()) {
            return std::nullopt;
        }
    } catch (const std::exception&) {
        return std::nullopt; // the reader throws where it finds too many levels
    }
    return value;
}

std::optional<std::string> textMember(const Json::Value& object, const char* name)
{
    const Json::Value& member = object[name];
    return member.isString() ? std::optional(member.asString()) : std::nullopt;
}

} // namespace tocca::audio
