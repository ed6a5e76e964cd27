#include "Audio/Packs/SoundPackLoader.h"

#include "Audio/Packs/PackImportError.h"
#include "Audio/Packs/PackImporter.h"
#include "Audio/Packs/PackStaging.h"
#include "Audio/RandomDraws.h"
#include "Platform/Directories.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Support/ThreadRole.h"

#include <initializer_list>
#include <utility>

namespace tocca::audio {

SoundPackLoader::SoundPackLoader(platform::Host& host)
    : host_(host)
    , library_(host.files, host.fileStore)
{
    refreshCustomPacks();
    // Not before the program has come up, so that the start that fails takes nothing from the user.
    host_.mainQueue.post(lifetime_.guard(
        [this] { PackStaging::forgetReplaced(host_.files, host_.fileStore, customPacksDirectory()); }));
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
    static const PackTable kNothing;
    const LoadedPack* const pack = find(id, folderURL);
    return pack != nullptr ? pack->table : kNothing;
}

SoundPackLoader::LoadedPack* SoundPackLoader::find(const std::string& id,
                                                   const std::filesystem::path& folderURL)
{
    requireThreadRole({ThreadRole::AudioQueue}, "SoundPackLoader::loadPack");
    if (const auto cached = soundPackDataCache_.find(id); cached != soundPackDataCache_.end()) {
        return &cached->second;
    }
    const auto names = host_.files.list(folderURL);
    if (!names) {
        return nullptr;
    }
    LoadedPack pack;
    for (const std::string& name : names.value()) {
        const auto slot = SoundSlot::fromFileName(name);
        if (!slot) {
            continue;
        }
        const bool hasRoom = pack.byteCount + kLargestFile <= kMostBytes;
        auto bytes =
            hasRoom ? host_.files.read(folderURL / name, kLargestFile) : Result<SharedBytes>(SharedBytes());
        if (bytes) {
            pack.byteCount += bytes.value() ? bytes.value()->size() : 0;
            pack.table[slot->index()].push_back(std::move(bytes.value()));
            pack.files[slot->index()].push_back({.path = folderURL / name});
        }
    }
    return &soundPackDataCache_.emplace(id, std::move(pack)).first->second;
}

SharedBytes SoundPackLoader::fetch(LoadedPack& pack, std::size_t slot, std::size_t variant)
{
    PackFile& file = pack.files[slot][variant];
    SharedBytes& bytes = pack.table[slot][variant];
    file.lastUse = ++useCount_;
    if (bytes) {
        return bytes;
    }
    auto read = host_.files.read(file.path, kLargestFile);
    if (!read) {
        return nullptr;
    }
    bytes = std::move(read.value());
    pack.byteCount += bytes->size();
    while (pack.byteCount > kMostBytes) {
        SharedBytes* oldest = nullptr;
        std::uint64_t oldestUse = file.lastUse;
        for (std::size_t i = 0; i < SoundSlot::kCount; ++i) {
            for (std::size_t j = 0; j < pack.files[i].size(); ++j) {
                if (pack.table[i][j] && pack.files[i][j].lastUse < oldestUse) {
                    oldest = &pack.table[i][j];
                    oldestUse = pack.files[i][j].lastUse;
                }
            }
        }
        if (oldest == nullptr) {
            break;
        }
        pack.byteCount -= (*oldest)->size();
        oldest->reset();
    }
    return bytes;
}

void SoundPackLoader::keepOnly(const std::string& id)
{
    requireThreadRole({ThreadRole::AudioQueue}, "SoundPackLoader::keepOnly");
    std::erase_if(soundPackDataCache_, [&](const auto& entry) { return entry.first != id; });
}

std::optional<std::filesystem::path> SoundPackLoader::builtInSoundPacksDirectory() const
{
    const auto firstOf = [this](const std::filesystem::path& base,
                                std::initializer_list<const char*> places) {
        for (const char* const place : places) {
            if (auto directory = base / place; host_.files.exists(directory)) {
                return std::optional(std::move(directory));
            }
        }
        return std::optional<std::filesystem::path>();
    };
    // Nearly every stroke ends at the first of these, so no later place is worked out before it is needed.
    if (const auto resources = host_.directories.resources()) {
        if (auto found = firstOf(*resources, {"SoundPacks", "Resources/SoundPacks"})) {
            return found;
        }
    }
    if (auto found = firstOf(host_.directories.currentWorkingDirectory(),
                             {"Sources/Tocca/Resources/SoundPacks", "Resources/SoundPacks"})) {
        return found;
    }
    const auto support = host_.directories.applicationSupport();
    return support ? firstOf(*support, {"Tocca/SoundPacks"}) : std::nullopt;
}

SharedBytes SoundPackLoader::sample(const std::filesystem::path& folderURL, const std::string& packId,
                                    KeyCategory category, KeyStrokeAction action)
{
    LoadedPack* const pack = find(packId, folderURL);
    if (pack == nullptr) {
        return nullptr;
    }
    for (const auto& slot : SoundSlot::chainFor(category, action)) {
        if (slot && !pack->table[slot->index()].empty()) {
            return fetch(*pack, slot->index(), drawIndex(host_.random, pack->table[slot->index()].size()));
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
