#pragma once

#include "Audio/Packs/PackLibrary.h"
#include "Audio/Packs/SoundPackInfo.h"
#include "Audio/SoundProfile.h"
#include "Audio/SoundSlot.h"
#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/SharedBytes.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tocca::platform {
struct Host;
}

namespace tocca::audio {

/// The recordings of one pack, sorted into slots; all slots are empty when its folder could not be listed.
using PackTable = std::array<std::vector<SharedBytes>, SoundSlot::kCount>;

/// Finds the recording for a stroke in a pack's folder and keeps what it has read for the rest of the process; keeps the list
/// of the packs that the user imported.
///
/// Threads: samples and `loadPack`: audio queue. Custom packs and construction: main. Directories: any.
/// Errors: none but by `importCustomPack`; what cannot be read is left out, and a stroke without a recording is silent.
class SoundPackLoader {
public:
    /// A larger file is left out, like one that cannot be read.
    static constexpr std::size_t kLargestFile = std::size_t{32} * 1024 * 1024;

    /// Starts a first `refreshCustomPacks`.
    explicit SoundPackLoader(platform::Host& host);
    SoundPackLoader(const SoundPackLoader&) = delete;
    SoundPackLoader& operator=(const SoundPackLoader&) = delete;

    /// The loader on the default host. Threads: main for the first use.
    [[nodiscard]] static SoundPackLoader& shared();

    /// The imported packs, sorted by name in code point order; empty until the first refresh.
    Published<std::vector<SoundPackInfo>> availableCustomPacks{{}};

    /// The folder of the imported packs, which it makes if it can; empty when the system names no place for the user's data.
    [[nodiscard]] std::filesystem::path customPacksDirectory() const;

    /// Reads the folder of the imported packs and queues the publication of what it holds; when it cannot be listed the list
    /// stays as it is.
    void refreshCustomPacks();

    /// Copies a folder into the folder of the imported packs, instead of one of that name, refreshes the list and returns the
    /// name: that of the folder, without extension. Samples that have been loaded of a pack of that name stay. Returns when
    /// the copy has reached the disk.
    /// Errors: throws `PackImportError`; what was there is as it was.
    std::string importCustomPack(const std::filesystem::path& from);

    /// The table of the pack kept under `id`, read from `folderURL` when there is none yet. A folder that cannot be listed
    /// gives an empty table and is tried again by the next request.
    const PackTable& loadPack(const std::string& id, const std::filesystem::path& folderURL);

    /// Where the built-in packs are: the first that exists of the program's resources, the working directory's source tree
    /// and the user's own data directory; looked up anew on every call.
    [[nodiscard]] std::optional<std::filesystem::path> builtInSoundPacksDirectory() const;

    /// A random variant of the best filled slot of a custom pack, or null.
    [[nodiscard]] SharedBytes sample(const std::filesystem::path& folderURL, const std::string& packId,
                                     KeyCategory category, KeyStrokeAction action);

    /// A random variant of the best filled slot of a built-in pack, or null.
    [[nodiscard]] SharedBytes sample(SwitchType switchType, KeyCategory category, KeyStrokeAction action);

private:
    platform::Host& host_;
    PackLibrary library_;
    std::unordered_map<std::string, PackTable> soundPackDataCache_; // audio queue
    Lifetime lifetime_;
};

} // namespace tocca::audio
