#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <string>

namespace tocca::platform {
class Files;
class FileStore;
struct FileStatus;
} // namespace tocca::platform

namespace tocca::audio {

/// Copies a folder into the folder of the imported packs.
///
/// Threads: any, one at a time; returns when the copy has reached the disk.
/// Lifetime: the platform outlives it.
class PackImporter {
public:
    PackImporter(const platform::Files& files, platform::FileStore& store)
        : files_(files)
        , store_(store)
    {}

    /// Copies `source` to `packs` under its own name without extension, instead of what has that name there, and returns the
    /// name. Links are copied as links, what is neither file, folder nor link is left out.
    /// Errors: the reason, for people; what was there is as it was.
    Result<std::string> import(const std::filesystem::path& source, const std::filesystem::path& packs);

private:
    struct Source;

    [[nodiscard]] Result<Source> examine(const std::filesystem::path& path) const;
    [[nodiscard]] Outcome refuseOverlap(const Source& source, const std::filesystem::path& packs) const;
    [[nodiscard]] Result<bool> leadsThrough(const std::filesystem::path& path,
                                            const platform::FileStatus& directory) const;
    Outcome copyTree(const std::filesystem::path& from, const std::filesystem::path& to, int depth);

    const platform::Files& files_;
    platform::FileStore& store_;
};

} // namespace tocca::audio
