#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Audio/SoundProfile.h"

#include <optional>
#include <string>

namespace tocca::ui {

/// A sound that the showroom offers: a built-in switch or an imported pack.
struct ShowroomItem {
    std::string id; ///< the switch's raw value, or the pack's `id`
    std::string title;
    std::string subtitle;
    std::string tag;
    std::string weight;
    std::string profile;
    bool isCustom = false;
    std::optional<audio::SoundPackInfo> customPack; ///< of imported packs only
    std::optional<audio::SwitchType> switchType;    ///< of built-in switches only

    [[nodiscard]] static ShowroomItem of(audio::SwitchType switchType);
    [[nodiscard]] static ShowroomItem of(const audio::SoundPackInfo& pack);
};

} // namespace tocca::ui
