#pragma once

#include "Support/Result.h"

#include <filesystem>

namespace tocca::platform::linux {

/// Copies a regular file with its permissions to `to`, which must not exist, and waits until the bytes have reached the disk.
///
/// The owner may always read and write the copy. A link is not followed, and nothing is opened that could wait for another program.
/// Errors: the system's, with the name of the file concerned; no half-made copy is left.
Outcome copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tocca::platform::linux
