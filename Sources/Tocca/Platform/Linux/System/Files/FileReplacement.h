#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string_view>

namespace tocca::platform::linux {

/// Puts a file with these bytes in the place of `path`, in one step; it is on the disk when this returns.
///
/// The directory must exist. A link at `path` is replaced, not followed.
/// Threads: any, one at a time for one path.
/// Errors: the file's name and the system's reason; what was there stays.
Outcome replaceFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace tocca::platform::linux
