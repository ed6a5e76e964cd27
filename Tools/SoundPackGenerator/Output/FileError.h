#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string_view>

namespace tocca::soundpack {

/// "cannot write out/x.wav: No space left on device". `code` is an errno, or 0 when the system gave no reason.
Error fileError(std::string_view attempt, const std::filesystem::path& path, int code);

} // namespace tocca::soundpack
