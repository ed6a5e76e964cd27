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
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tocca::platform {
struct Host;
}

namespace tocca::audio {

/// The recordings of one pack, sorted into slots; all slots are empty when its folder could not be listed. One that is not in memory is
/// null.
using PackTable = std::array<std::vector<SharedBytes>, SoundSlot::kCount>;

/// Finds the recording for a stroke in a pack's folder and keeps what it has read until it is told to forget it; keeps the list
/// of the packs that the user imported.
///
/// Threads: samples and `loadPack`: audio queue. Custom packs and construction: main. Directories: any.
/// Errors: none but by `importCustomPack`; what cannot be read is left out, and a stroke without a recording is silent.
class SoundPackLoader {
public:
    /// A larger file is left out, like one that cannot be read.
    static constexpr std::size_t kLargestFile = std::size_t{32} * 1024 * 1024;

    /// How many bytes of a pack's files are kept in memory; of more, those that were used last.
    static constexpr std::size_t kMostBytes = std::size_t{256} * 1024 * 1024;

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

    /// Forgets all packs but the one kept under `id`. Threads: audio queue.
    void keepOnly(const std::string& id);

    /// Where the built-in packs are: the first that exists of the program's resources, the working directory's source tree
    /// and the user's own data directory; looked up anew on every call.
    [[nodiscard]] std::optional<std::filesystem::path> builtInSoundPacksDirectory() const;

    /// A random variant of the best filled slot of a custom pack, or null.
    [[nodiscard]] SharedBytes sample(const std::filesystem::path& folderURL, const std::string& packId,
                                     KeyCategory category, KeyStrokeAction action);

    /// A random variant of the best filled slot of a built-in pack, or null.
    [[nodiscard]] SharedBytes sample(SwitchType switchType, KeyCategory category, KeyStrokeAction action);

private:
    /// A file of a pack, in the order of its slot.
    struct PackFile {
        std::filesystem::path path;
        std::uint64_t lastUse = 0;
    };

    struct LoadedPack {
        PackTable table;
        std::array<std::vector<PackFile>, SoundSlot::kCount> files;
        std::size_t byteCount = 0;
    };

    [[nodiscard]] LoadedPack* find(const std::string& id, const std::filesystem::path& folderURL);
    [[nodiscard]] SharedBytes fetch(LoadedPack& pack, std::size_t slot, std::size_t variant);

    platform::Host& host_;
    PackLibrary library_;
    std::unordered_map<std::string, LoadedPack> soundPackDataCache_; // audio queue
    std::uint64_t useCount_ = 0;                                     // audio queue
    Lifetime lifetime_;
};

} // namespace tocca::audio
