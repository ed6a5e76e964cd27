#pragma once

#include "Audio/CatalogueCase.h"
#include "Platform/Desktop/Geometry.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tocca::ui {

/// The cases of `UnderglowTheme`.
struct UnderglowThemes {
    enum Value : std::uint8_t { studioAmber, cyberpunk, polarWhite, matrixGreen };

    static constexpr std::array<Value, 4> allCases{studioAmber, cyberpunk, polarWhite, matrixGreen};
};

/// The colours of the glow. Threads: any.
class UnderglowTheme : public audio::CatalogueCase<UnderglowTheme, UnderglowThemes> {
public:
    using CatalogueCase::CatalogueCase;

    struct Row {
        std::string_view rawValue;
        platform::Colour primary;
        platform::Colour secondary;
    };

    static const std::array<Row, allCases.size()> rows;

    [[nodiscard]] platform::Colour primaryColor() const noexcept { return row().primary; }

    [[nodiscard]] platform::Colour secondaryColor() const noexcept { return row().secondary; }
};

} // namespace tocca::ui
