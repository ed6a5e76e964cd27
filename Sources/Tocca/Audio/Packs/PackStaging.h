#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace tocca::platform {
class Files;
class FileStore;
} // namespace tocca::platform

namespace tocca::audio {

/// A hidden folder beside the imported packs, in which a new pack grows until it takes its place in one step.
///
/// Whatever fails, and wherever the process ends, the old pack or the new one is in place, or the old one is put back by the
/// next `settleAbandoned`. What was replaced is never destroyed: it goes to the user's trash, or where there is none, to a hidden folder
/// beside the packs.
/// Threads: any, one at a time.
/// Errors: the system's.
/// Lifetime: the end removes the folder; the platform outlives it.
class PackStaging {
public:
    /// Chooses a name that nobody else uses, for a pack that will be `packs / name`.
    PackStaging(const platform::Files& files, platform::FileStore& store, const std::filesystem::path& packs,
                const std::string& name);
    ~PackStaging();
    PackStaging(const PackStaging&) = delete;
    PackStaging& operator=(const PackStaging&) = delete;

    /// Makes the folder.
    Outcome open();

    /// Where the new pack is to be made.
    [[nodiscard]] std::filesystem::path newPack() const;

    /// Where there is room for whatever making it takes; to be made first.
    [[nodiscard]] std::filesystem::path workFolder() const;

    /// Puts the finished new pack in its place, instead of whatever is there. An error leaves that as it was.
    Outcome commit();

    /// Whether `name` is kept for such folders.
    [[nodiscard]] static bool isReserved(std::string_view name);

    /// Whether `path`, without links, is a new pack that this process has made beside the packs in `library`.
    [[nodiscard]] static bool isStaged(const std::filesystem::path& path,
                                       const std::filesystem::path& library);

    /// Removes the hidden folders of packs that were replaced where there is no trash.
    static void forgetReplaced(const platform::Files& files, platform::FileStore& store,
                               const std::filesystem::path& packs);

    /// Puts back the packs, and removes the folders, that imports have left which ended before their time; leaves those alone
    /// that this process is still using. `names` is what is in `packs`; the result says whether that has changed.
    static bool settleAbandoned(const platform::Files& files, platform::FileStore& store,
                                const std::filesystem::path& packs, std::span<const std::string> names);

private:
    Outcome replace();
    Outcome replaceInTwoSteps();

    const platform::Files& files_;
    platform::FileStore& store_;
    const std::filesystem::path packs_;
    const std::string packName_;
    const std::filesystem::path folder_;
};

} // namespace tocca::audio
