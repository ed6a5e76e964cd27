#include "Audio/Packs/PackManifest.h"

#include <string_view>

#include <simdjson.h>

namespace tocca::audio {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

Error failure(simdjson::error_code code)
{
    return {simdjson::error_message(code)};
}

std::string textOf(const simdjson::dom::element& value)
{
    std::string_view text;
    return value.get(text) == simdjson::SUCCESS ? std::string(text) : std::string();
}

} // namespace

Result<PackManifest> PackManifest::parse(std::span<const std::byte> json)
{
    if (json.size() > kLargest) {
        return failure(simdjson::CAPACITY);
    }
    std::string_view text(reinterpret_cast<const char*>(json.data()), json.size());
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    simdjson::dom::parser parser;
    if (const auto code = parser.allocate(text.size(), kDeepest); code != simdjson::SUCCESS) {
        return failure(code);
    }
    simdjson::dom::object object;
    if (const auto code = parser.parse(simdjson::padded_string(text)).get(object);
        code != simdjson::SUCCESS) {
        return failure(code);
    }
    PackManifest manifest;
    for (const auto& [key, value] : object) {
        if (key == "name") {
            manifest.name = textOf(value);
        } else if (key == "description") {
            manifest.description = textOf(value);
        }
    }
    return manifest;
}

} // namespace tocca::audio
