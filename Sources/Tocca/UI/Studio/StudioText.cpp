#include "UI/Studio/StudioText.h"

#include <cmath>
#include <string_view>

namespace tocca::ui::studioText {
namespace {

constexpr std::string_view kUnreserved =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";

} // namespace

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

std::string fileUrl(const std::filesystem::path& path)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char byte : path.string()) {
        if (kUnreserved.find(byte) != std::string_view::npos) {
            url += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            url += '%';
            url += kDigits[value >> 4U];
            url += kDigits[value & 0xFU];
        }
    }
    return url;
}

} // namespace tocca::ui::studioText
