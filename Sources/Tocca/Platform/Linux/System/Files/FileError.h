#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string>

namespace tocca::platform::linux {

/// A failure as it is told to people: the last component of the path, and the reason.
[[nodiscard]] Error fileError(const std::filesystem::path& path, const std::string& reason);

/// The same with the system's text for an error number.
[[nodiscard]] Error fileError(const std::filesystem::path& path, int number);

} // namespace tocca::platform::linux
