#include "UI/SwitchSelection.h"

#include "Audio/AudioEngine.h"
#include "Platform/KeyCodes.h"

namespace tocca::ui::switchSelection {

bool isSelected(const audio::AudioEngine& engine, audio::SwitchType type)
{
    return !engine.selectedCustomPack.get() && engine.currentSwitchType.get() == type;
}

bool isSelected(const audio::AudioEngine& engine, const audio::SoundPackInfo& pack)
{
    const auto& selected = engine.selectedCustomPack.get();
    return selected && selected->id == pack.id;
}

void select(audio::AudioEngine& engine, audio::SwitchType type)
{
    engine.selectedCustomPack.set(std::nullopt);
    engine.currentSwitchType.set(type);
    engine.playKey(platform::key::kSpace, audio::KeyStrokeAction::down);
}

void select(audio::AudioEngine& engine, const audio::SoundPackInfo& pack)
{
    engine.selectedCustomPack.set(pack);
    engine.playKey(platform::key::kSpace, audio::KeyStrokeAction::down);
}

std::string activeSwitchName(const audio::AudioEngine& engine)
{
    const auto& pack = engine.selectedCustomPack.get();
    return pack ? pack->name : std::string(engine.currentSwitchType.get().rawValue());
}

} // namespace tocca::ui::switchSelection
