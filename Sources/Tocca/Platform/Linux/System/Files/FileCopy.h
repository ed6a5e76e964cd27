#pragma once

#include "Support/Result.h"

#include <filesystem>

namespace tocca::platform::linux {

/// Copies a regular file with its permissions to `to`, where nothing must be, and waits until the bytes have reached the disk.
///
/// The owner may always read and write the copy. Neither a link nor anything that could wait for another program is opened.
/// Errors: the system's, with the name it is about; the copy is gone then.
Outcome copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tocca::platform::linux
