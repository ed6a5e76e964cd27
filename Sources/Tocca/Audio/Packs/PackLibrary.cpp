#include "Audio/Packs/PackLibrary.h"

#include "Audio/Packs/PackManifest.h"
#include "Audio/Packs/PackStaging.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Support/DisplayText.h"

#include <optional>
#include <string>
#include <utility>

namespace tocca::audio {

namespace {

constexpr const char* kManifest = "tocca_meta.json";
constexpr const char* kFallbackManifest = "config.json";
constexpr const char* kDefaultDescription = "Custom Soundpack • Community switch";

std::optional<PackManifest> readManifest(const platform::Files& files, const std::filesystem::path& path)
{
    const auto bytes = files.read(path, PackManifest::kLargest);
    if (!bytes) {
        return std::nullopt;
    }
    auto manifest = PackManifest::parse(*bytes.value());
    return manifest ? std::optional(std::move(manifest.value())) : std::nullopt;
}

} // namespace

Result<std::vector<SoundPackInfo>> PackLibrary::packs(const std::filesystem::path& directory) const
{
    auto names = files_.list(directory);
    if (names && PackStaging::settleAbandoned(files_, store_, directory, names.value())) {
        names = files_.list(directory);
    }
    if (!names) {
        return names.error();
    }
    std::vector<SoundPackInfo> packs;
    for (const std::string& name : names.value()) {
        if (!PackStaging::isReserved(name) && isFolder(directory / name)) {
            packs.push_back(describe(directory / name));
        }
    }
    return packs;
}

bool PackLibrary::isFolder(const std::filesystem::path& path) const
{
    auto status = store_.status(path);
    if (status && status.value().kind == platform::FileKind::Link) {
        const auto target = store_.resolve(path);
        status = target ? store_.status(target.value()) : Result<platform::FileStatus>(target.error());
    }
    return status && status.value().kind == platform::FileKind::Directory;
}

SoundPackInfo PackLibrary::describe(const std::filesystem::path& folder) const
{
    const std::string folderName = folder.filename().string();
    SoundPackInfo info{.id = "custom_" + folderName,
                       .name = folderName,
                       .description = kDefaultDescription,
                       .isCustom = true,
                       .folderURL = folder};
    auto manifest = readManifest(files_, folder / kManifest);
    if (!manifest) {
        manifest = readManifest(files_, folder / kFallbackManifest);
        if (manifest) {
            manifest->description.clear();
        }
    }
    if (manifest && !manifest->name.empty()) {
        info.name = manifest->name;
    }
    if (manifest && !manifest->description.empty()) {
        info.description = manifest->description;
    }
    info.name = displayText(info.name);
    info.description = displayText(info.description);
    return info;
}

} // namespace tocca::audio
