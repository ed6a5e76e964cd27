#pragma once

#include "Audio/Conversion/ImportWatch.h"
#include "Support/Result.h"

#include <cstddef>
#include <filesystem>

namespace tocca::platform {
class Archive;
class FileStore;
} // namespace tocca::platform

namespace tocca::audio {

/// What an archive may hold; no sound pack needs more.
struct ArchiveLimits {
    static constexpr std::size_t kMostEntries = 2000;
    static constexpr std::size_t kMostBytes = std::size_t{64} << 20U;   ///< of all files, unpacked
    static constexpr std::size_t kLargestFile = std::size_t{32} << 20U; ///< unpacked
};

/// Writes everything in an archive below `folder`, which exists, but for what file managers leave behind.
/// Errors: why the archive is not taken, or cannot be read to its end, in one line for people; some of it may have been written.
Outcome unpack(platform::Archive& archive, platform::FileStore& store, const std::filesystem::path& folder,
               const ImportWatch& watch);

} // namespace tocca::audio
