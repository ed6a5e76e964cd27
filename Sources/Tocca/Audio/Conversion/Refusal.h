#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string>

namespace tocca::audio {

/// Why something that was to be imported is not: its name and the reason, in one line for people.
[[nodiscard]] inline Error refusalOf(const std::filesystem::path& path, const std::string& reason)
{
    return {"“" + path.filename().string() + "” " + reason};
}

} // namespace tocca::audio
