#pragma once

#include "Platform/FileStore.h"
#include "Support/Result.h"

#include <filesystem>
#include <string>

namespace tocca::platform {
class Files;
class FileStore;
} // namespace tocca::platform

namespace tocca::audio {

/// Something that can be imported.
struct PackSource {
    std::filesystem::path path; ///< without links
    platform::FileStatus status;
    std::string fileName; ///< what the user knows it by
    std::string packName; ///< the same without extension: what the pack will be called
};

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
    /// One that lies in a `PackStaging` of this process is moved instead, which takes no time.
    Result<std::string> import(const std::filesystem::path& source, const std::filesystem::path& packs);

    /// Whether `source` could be imported to `packs`, which is made if there is none.
    /// Errors: why not.
    [[nodiscard]] Result<PackSource> check(const std::filesystem::path& source,
                                           const std::filesystem::path& packs) const;

private:
    [[nodiscard]] Result<PackSource> examine(const std::filesystem::path& path) const;
    [[nodiscard]] Outcome refuseOverlap(const PackSource& source, const std::filesystem::path& packs) const;
    Outcome bring(const PackSource& source, const std::filesystem::path& packs,
                  const std::filesystem::path& to);
    [[nodiscard]] Result<bool> leadsThrough(const std::filesystem::path& path,
                                            const platform::FileStatus& directory) const;
    Outcome copyTree(const std::filesystem::path& from, const std::filesystem::path& to, int depth);

    const platform::Files& files_;
    platform::FileStore& store_;
};

} // namespace tocca::audio
