#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace tocca {

/// Immutable bytes that are handed around without copying; the address identifies the recording.
using SharedBytes = std::shared_ptr<const std::vector<std::byte>>;

} // namespace tocca
