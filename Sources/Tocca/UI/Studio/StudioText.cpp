#include "UI/Studio/StudioText.h"

#include <cmath>

namespace tocca::ui::studioText {

std::string percentage(float share)
{
    return std::to_string(static_cast<int>(share * 100)) + "%";
}

std::string presetLabel(float preset)
{
    return preset == 1.0F ? "100% (MAX)" : percentage(preset);
}

bool isPresetActive(float preset, float volume)
{
    constexpr float kNear = 0.03F;
    return std::abs(volume - preset) < kNear;
}

std::string lubeReading(float lubeLevel)
{
    constexpr float kDry = 0.05F;
    return lubeLevel > kDry ? percentage(lubeLevel) + " Lubed" : "Factory Dry";
}

std::string muteStatus(const std::optional<std::string>& reason)
{
    return reason.value_or("Mute Active: Audio stream currently silenced.");
}

} // namespace tocca::ui::studioText
