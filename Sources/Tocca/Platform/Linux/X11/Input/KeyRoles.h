#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tocca::platform::linux {

/// What each key of an X server does to the modifiers.
///
/// Keys are named by their X key code, which is the kernel's code plus 8. A key's position decides whether it is a modifier,
/// whatever it was remapped to; only Caps Lock, which people remap most, is taken for what it was remapped to.
class KeyRoles {
public:
    static constexpr std::size_t kKeys = 256;

    struct Role {
        std::uint16_t keyCode = 0; ///< the platform's
        std::uint64_t flag = 0;    ///< held down, the key sets this; 0 for an ordinary key
        bool isLock = false;       ///< the key toggles Caps Lock; what counts is the lock, not the key
    };

    /// What the server tells about each key.
    struct Layout {
        std::array<std::uint32_t, kKeys> keysyms{};  ///< of the first level of the first group
        std::array<std::uint8_t, kKeys> modifiers{}; ///< mask of the modifiers that the key belongs to
    };

    /// A board on which nothing is remapped.
    KeyRoles() noexcept;
    explicit KeyRoles(const Layout& layout) noexcept;

    [[nodiscard]] const Role& of(std::uint8_t key) const noexcept { return roles_[key]; }

private:
    std::array<Role, kKeys> roles_{};
};

} // namespace tocca::platform::linux
