#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <json/json.h>

namespace tocca::audio {

/// Reads JSON as people write it by hand: with a byte order mark, comments, trailing commas, single quotes and NaN.
/// Errors: nothing when it makes no sense even so, is nested too deeply, or is no object.
[[nodiscard]] std::optional<Json::Value> parseForeignJson(std::string_view text);

/// The member of an object when it is a string, else nothing.
[[nodiscard]] std::optional<std::string> textMember(const Json::Value& object, const char* name);

} // namespace tocca::audio
