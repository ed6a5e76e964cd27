#pragma once

#include <array>
#include <optional>
#include <string>

/// Numbers and states as both windows put them into words. Threads: any.
namespace tocca::ui::studioText {

/// The volumes that one click sets.
inline constexpr std::array<float, 4> kVolumePresets{0.25F, 0.5F, 0.75F, 1.0F};

/// "74%": the whole per cents of a share of 1.
[[nodiscard]] std::string percentage(float share);

/// The level nearest to `share` that does not read less: 0.53 becomes one that reads "53%", which the nearest of all does not.
[[nodiscard]] float levelOf(double share);

/// "75%", and "100% (MAX)".
[[nodiscard]] std::string presetLabel(float preset);

/// Whether `volume` is as good as `preset`.
[[nodiscard]] bool isPresetActive(float preset, float volume);

/// "6% Lubed", or "Factory Dry".
[[nodiscard]] std::string lubeReading(float lubeLevel);

/// The reason of the silence, or that there is silence.
[[nodiscard]] std::string muteStatus(const std::optional<std::string>& reason);

} // namespace tocca::ui::studioText
