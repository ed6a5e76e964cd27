#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tocca::soundpack {

/// The kinds of key a pack tells apart.
enum class Key { Standard, Space, Enter, Back };

/// The two halves of a stroke.
enum class Action { Press, Release };

/// One of the eight sounds of a pack; each has several variants.
struct Slot {
    Key key;
    Action action;

    bool operator==(const Slot&) const = default;
};

inline constexpr std::array<Key, 4> kKeys{Key::Standard, Key::Space, Key::Enter, Key::Back};

inline constexpr std::array<Slot, 8> kSlots{{
    {Key::Standard, Action::Press},
    {Key::Standard, Action::Release},
    {Key::Space, Action::Press},
    {Key::Space, Action::Release},
    {Key::Enter, Action::Press},
    {Key::Enter, Action::Release},
    {Key::Back, Action::Press},
    {Key::Back, Action::Release},
}};

/// How many variants of `slot` a pack holds: the standard key is struck far more often than any other.
constexpr std::size_t variantCount(const Slot& slot)
{
    return slot.key == Key::Standard ? 8 : 4;
}

/// "press_space": what the file names of the slot begin with.
std::string fileStem(const Slot& slot);

/// "press_space_3.wav". `variant` counts from 0, file names from 1.
std::string fileName(const Slot& slot, std::size_t variant);

/// "space/press": the slot's part in the names of random streams, which are fixed for ever (see RandomStream.h).
std::string streamName(const Slot& slot);

} // namespace tocca::soundpack
