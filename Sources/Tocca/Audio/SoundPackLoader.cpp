#include "Audio/SoundPackLoader.h"

#include "Audio/PackImportError.h"
#include "Audio/PackImporter.h"
#include "Audio/RandomDraws.h"
#include "Platform/Directories.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <utility>

namespace tocca::audio {

SoundPackLoader::SoundPackLoader(platform::Host& host)
    : host_(host)
    , library_(host.files, host.fileStore)
{
    refreshCustomPacks();
}

SoundPackLoader& SoundPackLoader::shared()
{
    static auto& instance = *new SoundPackLoader(platform::defaultHost());
    return instance;
}

std::filesystem::path SoundPackLoader::customPacksDirectory() const
{
    const auto support = host_.directories.applicationSupport();
    if (!support) {
        return {};
    }
    auto directory = *support / "Tocca/CustomSoundPacks";
    // Without it the list stays empty, and an import says why.
    static_cast<void>(host_.fileStore.makeDirectories(directory));
    return directory;
}

void SoundPackLoader::refreshCustomPacks()
{
    requireThreadRole({ThreadRole::Main}, "SoundPackLoader::refreshCustomPacks");
    const auto directory = customPacksDirectory();
    if (directory.empty()) {
        return;
    }
    auto packs = library_.packs(directory);
    if (!packs) {
        return;
    }
    host_.mainQueue.post(lifetime_.guard([this, found = std::move(packs.value())]() mutable {
        std::stable_sort(found.begin(), found.end(),
                         [](const auto& a, const auto& b) { return a.name < b.name; });
        availableCustomPacks.set(std::move(found));
    }));
}

std::string SoundPackLoader::importCustomPack(const std::filesystem::path& from)
{
    requireThreadRole({ThreadRole::Main}, "SoundPackLoader::importCustomPack");
    const auto directory = customPacksDirectory();
    if (directory.empty()) {
        throw PackImportError({"the system names no folder for the user's data"});
    }
    const auto name = PackImporter(host_.files, host_.fileStore).import(from, directory);
    if (!name) {
        throw PackImportError(name.error());
    }
    refreshCustomPacks();
    return name.value();
}

const PackTable& SoundPackLoader::loadPack(const std::string& id, const std::filesystem::path& folderURL)
{
    requireThreadRole({ThreadRole::AudioQueue}, "SoundPackLoader::loadPack");
    if (const auto cached = soundPackDataCache_.find(id); cached != soundPackDataCache_.end()) {
        return cached->second;
    }
    const auto names = host_.files.list(folderURL);
    if (!names) {
        static const PackTable kNothing;
        return kNothing;
    }
    PackTable table;
    for (const std::string& name : names.value()) {
        const auto slot = SoundSlot::fromFileName(name);
        if (!slot) {
            continue;
        }
        if (auto bytes = host_.files.read(folderURL / name, kLargestFile)) {
            table[slot->index()].push_back(std::move(bytes.value()));
        }
    }
    return soundPackDataCache_.emplace(id, std::move(table)).first->second;
}

std::optional<std::filesystem::path> SoundPackLoader::builtInSoundPacksDirectory() const
{
    std::vector<std::filesystem::path> candidates;
    if (const auto resources = host_.directories.resources()) {
        candidates.push_back(*resources / "SoundPacks");
        candidates.push_back(*resources / "Resources/SoundPacks");
    }
    const auto current = host_.directories.currentWorkingDirectory();
    candidates.push_back(current / "Sources/Tocca/Resources/SoundPacks");
    candidates.push_back(current / "Resources/SoundPacks");
    if (const auto support = host_.directories.applicationSupport()) {
        candidates.push_back(*support / "Tocca/SoundPacks");
    }
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [this](const auto& path) { return host_.files.exists(path); });
    return found == candidates.end() ? std::nullopt : std::optional(*found);
}

SharedBytes SoundPackLoader::sample(const std::filesystem::path& folderURL, const std::string& packId,
                                    KeyCategory category, KeyStrokeAction action)
{
    const PackTable& table = loadPack(packId, folderURL);
    for (const auto& slot : SoundSlot::chainFor(category, action)) {
        if (slot && !table[slot->index()].empty()) {
            const auto& variants = table[slot->index()];
            return variants[drawIndex(host_.random, variants.size())];
        }
    }
    return nullptr;
}

SharedBytes SoundPackLoader::sample(SwitchType switchType, KeyCategory category, KeyStrokeAction action)
{
    const auto directory = builtInSoundPacksDirectory();
    if (!directory) {
        return nullptr;
    }
    return sample(*directory / switchType.folderName(), std::string(switchType.rawValue()), category, action);
}

} // namespace tocca::audio
