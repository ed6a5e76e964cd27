#pragma once

#include "Audio/CatalogueCase.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace tocca::audio {

/// What kind of key a physical position is; each kind has sounds of its own.
class KeyCategory {
public:
    enum Value : std::uint8_t { standard, spacebar, enter, backspace, modifier };

    constexpr KeyCategory(Value value) noexcept
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; }

    /// Classifies a key code; total. Threads: any. Real-time: wait-free.
    [[nodiscard]] static KeyCategory from(std::uint16_t keyCode) noexcept;

    /// The stereo position of a key code on a US board, −1 left … +1 right; total. Threads: any. Real-time: wait-free.
    [[nodiscard]] static float spatialPan(std::uint16_t keyCode) noexcept;

private:
    Value value_;
};

/// The direction of a stroke.
enum class KeyStrokeAction : std::uint8_t { down, up };

/// The cases of `SwitchType`.
struct SwitchTypes {
    enum Value : std::uint8_t { holyPanda, cherryMXBlue, cherryMXBrown, nkCream, typewriter };

    static constexpr std::array<Value, 5> allCases{holyPanda, cherryMXBlue, cherryMXBrown, nkCream,
                                                   typewriter};
};

/// The built-in switches. Threads: any.
class SwitchType : public CatalogueCase<SwitchType, SwitchTypes> {
public:
    using CatalogueCase::CatalogueCase;

    struct Row {
        std::string_view rawValue;
        std::string_view description;
        std::string_view iconName;
        std::string_view folderName;
    };

    static const std::array<Row, allCases.size()> rows;

    [[nodiscard]] std::string_view iconName() const noexcept { return row().iconName; }

    /// The name of the switch's folder inside the built-in sound pack directory.
    [[nodiscard]] std::string_view folderName() const noexcept { return row().folderName; }
};

} // namespace tocca::audio

template <>
struct std::hash<tocca::audio::KeyCategory> {
    [[nodiscard]] std::size_t operator()(tocca::audio::KeyCategory key) const noexcept
    {
        return std::hash<tocca::audio::KeyCategory::Value>{}(key);
    }
};
