#include "UI/Studio/StudioText.h"

#include <cmath>

namespace tocca::ui::studioText {

std::string percentage(float share)
{
    return std::to_string(static_cast<int>(share * 100)) + "%";
}

float levelOf(double share)
{
    const auto nearest = static_cast<float>(share);
    const double percent = std::round(share * 100);
    constexpr double kWhole = 1e-9;
    const bool isWhole = std::abs(share * 100 - percent) < kWhole;
    return isWhole && static_cast<int>(nearest * 100) < static_cast<int>(percent)
               ? std::nextafter(nearest, 1.0F)
               : nearest;
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
