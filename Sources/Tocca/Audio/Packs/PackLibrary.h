#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Support/Result.h"

#include <filesystem>
#include <vector>

namespace tocca::platform {
class Files;
class FileStore;
} // namespace tocca::platform

namespace tocca::audio {

/// The folder of the imported packs: every folder directly in it is one.
///
/// Threads: any, one at a time.
/// Lifetime: the platform outlives it.
class PackLibrary {
public:
    PackLibrary(const platform::Files& files, platform::FileStore& store)
        : files_(files)
        , store_(store)
    {}

    /// Describes the packs in `directory`, in the file system's order, after putting right what an interrupted import has left
    /// there. Names and descriptions are fit for display, whatever the folder and its manifest hold.
    /// Errors: why the directory cannot be listed.
    [[nodiscard]] Result<std::vector<SoundPackInfo>> packs(const std::filesystem::path& directory) const;

private:
    [[nodiscard]] bool isFolder(const std::filesystem::path& path) const;
    [[nodiscard]] SoundPackInfo describe(const std::filesystem::path& folder) const;

    const platform::Files& files_;
    platform::FileStore& store_;
};

} // namespace tocca::audio
