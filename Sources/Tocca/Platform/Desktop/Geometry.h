#pragma once

#include <cstdint>

namespace tocca::platform {

/// A rectangle. Units: points, from the bottom left of the main screen, y upwards.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double midX() const noexcept { return x + width / 2; }

    [[nodiscard]] double maxY() const noexcept { return y + height; }

    bool operator==(const Rect&) const = default;
};

/// Units: points.
struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

/// An opaque colour. Units: sRGB components, 0…255.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;
};

} // namespace tocca::platform
