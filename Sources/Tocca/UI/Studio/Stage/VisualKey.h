#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tocca::ui {

/// A cap of the drawn keyboard.
struct VisualKey {
    std::string_view label;
    std::uint16_t code = 0;  ///< the key that lights the cap
    double widthRatio = 1.0; ///< in key units

    /// Unique on the board: "53_esc".
    [[nodiscard]] std::string id() const;

    /// Units: points; smaller where the label is a word.
    [[nodiscard]] double labelSize() const;
};

/// The keyboard as it is drawn, and the measures of the drawing. Units: points. Threads: any.
namespace miniKeyboard {

inline constexpr double kRowGap = 3;
inline constexpr double kKeyGap = 2.5;
inline constexpr double kKeyHeight = 18;
inline constexpr double kLargestUnit = 20; ///< width of a standard key, given enough room
inline constexpr double kPadding = 6;
inline constexpr int kRowCount = 5;

/// The caps of a row from left to right; rows count from the top.
[[nodiscard]] std::span<const VisualKey> row(int index);

/// The width of a standard key in a row that has `available` points: the gaps stay and the caps shrink in proportion.
[[nodiscard]] double unitWidth(std::span<const VisualKey> keys, double available);

/// Width and height of the whole board, given enough room.
[[nodiscard]] double fullWidth();
[[nodiscard]] double fullHeight();

} // namespace miniKeyboard
} // namespace tocca::ui
