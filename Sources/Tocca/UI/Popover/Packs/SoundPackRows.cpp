#include "UI/Popover/Packs/SoundPackRows.h"

#include "Audio/AudioEngine.h"
#include "Platform/KeyCodes.h"
#include "Support/DisplayText.h"

namespace tocca::ui::soundPackRows {

std::vector<SoundPackRow> builtIn(const audio::AudioEngine& engine)
{
    std::vector<SoundPackRow> rows;
    rows.reserve(audio::SwitchType::allCases.size());
    for (const audio::SwitchType type : audio::SwitchType::allCases) {
        rows.push_back(
            {.icon = std::string(type.iconName()),
             .title = std::string(type.rawValue()),
             .line = std::string(type.description()),
             .isSelected = !engine.selectedCustomPack.get() && engine.currentSwitchType.get() == type});
    }
    return rows;
}

std::vector<SoundPackRow> community(const audio::AudioEngine& engine,
                                    const std::vector<audio::SoundPackInfo>& packs, const CommunityPage& page)
{
    std::vector<SoundPackRow> rows;
    for (std::size_t i = page.first(); i < page.end(); ++i) {
        const audio::SoundPackInfo& pack = packs[i];
        rows.push_back({.icon = "waveform.circle.fill",
                        .title = displayText(pack.name),
                        .line = displayText(pack.description),
                        .isSelected = engine.selectedCustomPack.get() == pack});
    }
    return rows;
}

void choose(audio::AudioEngine& engine, audio::SwitchType type)
{
    engine.selectedCustomPack.set(std::nullopt);
    engine.currentSwitchType.set(type);
    engine.playKey(platform::key::kSpace, audio::KeyStrokeAction::down);
}

void choose(audio::AudioEngine& engine, const audio::SoundPackInfo& pack)
{
    engine.selectedCustomPack.set(pack);
    engine.playKey(platform::key::kSpace, audio::KeyStrokeAction::down);
}

} // namespace tocca::ui::soundPackRows
