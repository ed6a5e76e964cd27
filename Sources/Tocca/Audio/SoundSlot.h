#pragma once

#include "Audio/SoundProfile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tocca::audio {

/// One of the eight places a pack's recordings are sorted into. Threads: any.
class SoundSlot {
public:
    enum Sound : std::uint8_t { standard, space, enter, back };

    static constexpr std::size_t kCount = 8;

    constexpr SoundSlot(KeyStrokeAction direction, Sound sound) noexcept
        : direction_(direction)
        , sound_(sound)
    {}

    /// The slot of a file by its name, or nothing when it is not an accepted audio file.
    [[nodiscard]] static std::optional<SoundSlot> fromFileName(std::string_view fileName);

    /// The slots to try for a stroke, best first; unused places hold nothing.
    [[nodiscard]] static std::array<std::optional<SoundSlot>, 3> chainFor(KeyCategory category,
                                                                          KeyStrokeAction action) noexcept;

    [[nodiscard]] constexpr std::size_t index() const noexcept
    {
        return static_cast<std::size_t>(direction_) * 4 + static_cast<std::size_t>(sound_);
    }

    /// "press_standard": what the slot is called, and its files begin with.
    [[nodiscard]] std::string_view name() const noexcept;

    bool operator==(const SoundSlot&) const = default;

private:
    KeyStrokeAction direction_;
    Sound sound_;
};

} // namespace tocca::audio
