#pragma once

#include "Platform/Desktop/Geometry.h"

/// The colours that both windows share. The views have them from `Theme`.
namespace tocca::ui::StudioTheme {

inline constexpr platform::Colour chassisBg{246, 248, 250};  ///< window and page background
inline constexpr platform::Colour panelBg{255, 255, 255};    ///< sidebar, header bars, pagination bar
inline constexpr platform::Colour cardBg{255, 255, 255};     ///< cards and sections
inline constexpr platform::Colour cardBorder{226, 232, 240}; ///< card borders, dividers
inline constexpr platform::Colour amberAccent{217, 119, 6};  ///< selection, active states, icons
inline constexpr platform::Colour amberGlow{245, 158, 11};   ///< reserved light amber
inline constexpr platform::Colour mintStatus{5, 150, 105};   ///< positive status
inline constexpr platform::Colour textPrimary{15, 23, 42};   ///< titles
inline constexpr platform::Colour textSecondary{51, 65, 85}; ///< body text
inline constexpr platform::Colour textMuted{100, 116, 139};  ///< hints, disabled controls

} // namespace tocca::ui::StudioTheme
