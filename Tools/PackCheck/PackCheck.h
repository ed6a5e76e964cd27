#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string>

namespace tocca::packcheck {

/// What Tocca makes of a pack.
struct Findings {
    std::string text;        ///< for people, a line for each file
    bool canBeHeard = false; ///< whether any key that is pressed sounds
    int problems = 0;        ///< files that would be played but cannot be
};

/// Looks at a pack's folder or archive, as importing it would. Nothing that is there is changed; what it takes to convert a pack is
/// written to a folder of its own, and removed.
/// Errors: why it could not be imported, in one line.
[[nodiscard]] Result<Findings> check(const std::filesystem::path& pack);

} // namespace tocca::packcheck
