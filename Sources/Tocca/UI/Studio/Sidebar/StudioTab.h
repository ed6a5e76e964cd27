#pragma once

#include "Audio/CatalogueCase.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tocca::ui {

/// The cases of `StudioTab`.
struct StudioTabs {
    enum Value : std::uint8_t { showroom, acoustics, stage, privacy, telemetry, settings };

    static constexpr std::array<Value, 6> allCases{showroom, acoustics, stage, privacy, telemetry, settings};
};

/// The pages of the Studio window, in the order of the sidebar; the raw value is the title. Threads: any.
class StudioTab : public audio::CatalogueCase<StudioTab, StudioTabs> {
public:
    using CatalogueCase::CatalogueCase;

    struct Row {
        std::string_view rawValue;
        std::string_view icon;
    };

    static const std::array<Row, allCases.size()> rows;

    /// The name of the symbol beside the title.
    [[nodiscard]] std::string_view icon() const noexcept { return row().icon; }
};

} // namespace tocca::ui
