#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string_view>

namespace tocca::platform::linux {

/// Copies a regular file with its permissions to `to`, which must not exist, and waits until the bytes have reached the disk.
///
/// The owner may always read and write the copy. A link is not followed, and nothing is opened that could wait for another program.
/// Errors: the system's, with the name of the file concerned; no half-made copy is left.
Outcome copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Makes a regular file with these bytes at `to`, which must not exist, and waits until they have reached the disk.
/// Errors: the system's, with the name of the file; no half-made file is left.
Outcome writeNewFile(const std::filesystem::path& to, std::string_view bytes);

} // namespace tocca::platform::linux
