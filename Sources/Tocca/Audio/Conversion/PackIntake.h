#pragma once

#include "Audio/Conversion/ImportWatch.h"
#include "Audio/Conversion/PackChoice.h"
#include "Audio/Packs/PackStaging.h"
#include "Support/Result.h"

#include <filesystem>
#include <memory>
#include <string>

namespace tocca::platform {
class Archives;
class FileStore;
class Files;
class SoundDecoder;
struct Host;
} // namespace tocca::platform

namespace tocca::audio {

/// A plain pack that lies beside the imported ones, ready to be moved among them. Lifetime: the end removes what is left of it.
struct PreparedPack {
    std::unique_ptr<PackStaging> staging;
    std::filesystem::path path;
};

/// Makes ready what somebody wants to import: unpacks an archive, finds the pack in it or in a folder, converts it if it is a foreign
/// one, and copies it beside the imported packs, so that importing it is a matter of moving it.
///
/// Threads: any, one at a time.
/// Lifetime: what it is given outlives it.
class PackIntake {
public:
    explicit PackIntake(platform::Host& host);

    PackIntake(const platform::Files& files, platform::FileStore& store, const platform::Archives& archives,
               const platform::SoundDecoder& decoder)
        : files_(files)
        , store_(store)
        , archives_(archives)
        , decoder_(decoder)
    {}

    /// Prepares `source` for the folder `packs`.
    /// Errors: why it cannot be imported, or that it was cancelled, in one line for people; nothing is left of it then.
    Result<PreparedPack> prepare(const std::filesystem::path& source, const std::filesystem::path& packs,
                                 const ImportWatch& watch);

private:
    Outcome prepareFile(const std::filesystem::path& source, PackStaging& staging, const ImportWatch& watch);
    Outcome prepareFolder(const std::filesystem::path& source, const std::string& name, PackStaging& staging,
                          const ImportWatch& watch);
    Outcome unpackTo(const std::filesystem::path& archive, const std::filesystem::path& folder,
                     const ImportWatch& watch);
    Outcome convert(const PackChoice& choice, const SourceTree& all, const std::string& name,
                    PackStaging& staging, bool isUnpacked, const ImportWatch& watch);
    Outcome copy(const SourceTree& tree, const std::filesystem::path& to, const ImportWatch& watch);
    [[nodiscard]] bool isArchive(const std::filesystem::path& file) const;

    const platform::Files& files_;
    platform::FileStore& store_;
    const platform::Archives& archives_;
    const platform::SoundDecoder& decoder_;
};

} // namespace tocca::audio
