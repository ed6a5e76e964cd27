#include "UI/Popover/Packs/PackImport.h"

#include "Audio/Packs/PackImportError.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Desktop/OpenPanels.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Support/DisplayText.h"

namespace tocca::ui {

PackImport::PackImport(platform::Host& host, audio::SoundPackLoader& loader)
    : host_(host)
    , loader_(loader)
{}

void PackImport::openSoundPackImporter()
{
    host_.openPanels.chooseDirectory(
        "Import Soundpack", lifetime_.guard([this](const std::optional<std::filesystem::path>& folder) {
            if (folder) {
                importFrom(*folder, "Failed to import: ");
            }
        }));
}

bool PackImport::handleDrop(const std::vector<std::filesystem::path>& folders)
{
    if (folders.empty()) {
        return false;
    }
    host_.mainQueue.post(
        lifetime_.guard([this, folder = folders.front()] { importFrom(folder, "Import failed: "); }));
    return true;
}

void PackImport::importFrom(const std::filesystem::path& folder, std::string_view failure)
{
    try {
        importMessage.set("Imported '" + displayText(loader_.importCustomPack(folder)) + "'!");
    } catch (const audio::PackImportError& error) {
        importMessage.set(std::string(failure) + error.what());
    }
}

} // namespace tocca::ui
