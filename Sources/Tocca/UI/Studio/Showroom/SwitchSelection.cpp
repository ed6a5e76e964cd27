#include "UI/Studio/Showroom/SwitchSelection.h"

#include "Audio/AudioEngine.h"
#include "Platform/KeyCodes.h"

namespace tocca::ui::switchSelection {

bool isSelected(const ShowroomItem& item, const audio::AudioEngine& engine)
{
    const auto& pack = engine.selectedCustomPack.get();
    if (item.isCustom) {
        return pack && pack->id == item.id;
    }
    return !pack && item.switchType == engine.currentSwitchType.get();
}

void select(const ShowroomItem& item, audio::AudioEngine& engine)
{
    if (item.isCustom && item.customPack) {
        engine.selectedCustomPack.set(item.customPack);
    } else if (item.switchType) {
        engine.selectedCustomPack.set(std::nullopt);
        engine.currentSwitchType.set(*item.switchType);
    }
    engine.playKey(platform::key::kSpace, audio::KeyStrokeAction::down);
}

std::string activeSwitchName(const audio::AudioEngine& engine)
{
    const auto& pack = engine.selectedCustomPack.get();
    return pack ? pack->name : std::string(engine.currentSwitchType.get().rawValue());
}

} // namespace tocca::ui::switchSelection
