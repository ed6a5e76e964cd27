#pragma once

#include "Audio/CatalogueCase.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tocca::audio {

/// The cases of `AcousticDeskSurface`.
struct AcousticDeskSurfaces {
    enum Value : std::uint8_t { cleanStudio, feltDeskmat, hardwoodDesk, gasketPoron };

    static constexpr std::array<Value, 4> allCases{cleanStudio, feltDeskmat, hardwoodDesk, gasketPoron};
};

/// What the keyboard stands on; it colours every key stroke. Threads: any.
class AcousticDeskSurface : public CatalogueCase<AcousticDeskSurface, AcousticDeskSurfaces> {
public:
    using CatalogueCase::CatalogueCase;

    struct Row {
        std::string_view rawValue;
        std::string_view description;
        float gain;
        float rate;
    };

    static const std::array<Row, allCases.size()> rows;

    /// Linear factor on a key stroke's volume.
    [[nodiscard]] float deskGain() const noexcept { return row().gain; }

    /// Factor on a key stroke's playback rate.
    [[nodiscard]] float deskRate() const noexcept { return row().rate; }
};

/// The cases of `MouseSwitchProfile`.
struct MouseSwitchProfiles {
    enum Value : std::uint8_t { kailhGM8, omron50M, silentOptical };

    static constexpr std::array<Value, 3> allCases{kailhGM8, omron50M, silentOptical};
};

/// Which micro-switch the mouse buttons sound like. Threads: any.
class MouseSwitchProfile : public CatalogueCase<MouseSwitchProfile, MouseSwitchProfiles> {
public:
    using CatalogueCase::CatalogueCase;

    struct Row {
        std::string_view rawValue;
        std::string_view description;
        std::string_view stem;
    };

    static const std::array<Row, allCases.size()> rows;

    /// The first part of the names under which the profile's two clicks are kept.
    [[nodiscard]] std::string_view stem() const noexcept { return row().stem; }
};

/// A mouse button; every button beyond the two main ones is `other`.
enum class MouseButton : std::uint8_t { left, right, other };

} // namespace tocca::audio
