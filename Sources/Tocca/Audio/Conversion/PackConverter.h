#pragma once

#include "Audio/Conversion/ConversionPlan.h"
#include "Audio/Conversion/ImportWatch.h"
#include "Audio/Conversion/SourceTree.h"
#include "Audio/Conversion/Strike.h"
#include "Audio/SoundSlot.h"
#include "Support/Result.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tocca::platform {
class FileStore;
class SoundDecoder;
} // namespace tocca::platform

namespace tocca::audio {

/// A sound of a foreign pack that has found its place.
struct ChosenStrike {
    Take take;
    Strike strike;
    SoundSlot slot;
    std::string fileName; ///< in the new pack
};

/// What becomes of a foreign pack.
struct Conversion {
    std::string format;
    std::string name; ///< for display
    std::vector<ChosenStrike> chosen;
    std::vector<std::string> remarks; ///< what is not used and why, a line each
    double gain = 1.0;                ///< linear, for all
    bool hasReleases = false;

    /// One line for people.
    [[nodiscard]] std::string description() const;

    /// All of it for people.
    [[nodiscard]] std::string report() const;
};

/// Makes plain sound packs of foreign ones.
///
/// Threads: any, one at a time. Lifetime: what it is given outlives it.
class PackConverter {
public:
    static constexpr std::size_t kMostStandard = 32; ///< variants of the standard sound
    static constexpr std::size_t kMostOther = 8;     ///< variants of each other slot
    static constexpr double kTargetLufs = -30.0;     ///< of the standard press, as in the built-in packs

    PackConverter(const platform::SoundDecoder& decoder, platform::FileStore& store)
        : decoder_(decoder)
        , store_(store)
    {}

    /// Listens to the sounds that `plan` names and picks from them. `folderName` is the name of a pack that has none.
    /// Errors: when none can be used, or it was cancelled.
    [[nodiscard]] Result<Conversion> choose(const ConversionPlan& plan, const SourceTree& tree,
                                            const std::string& folderName, const ImportWatch& watch) const;

    /// Writes the new pack into a folder that exists: sounds, manifest and report.
    /// Errors: the file system's.
    Outcome write(const Conversion& conversion, const SourceTree& tree, const std::filesystem::path& folder,
                  const ImportWatch& watch) const;

private:
    const platform::SoundDecoder& decoder_;
    platform::FileStore& store_;
};

} // namespace tocca::audio
