#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tocca::demonstration {

/// The evdev codes that type `text` on an ANSI keyboard; only small letters and spaces, others are left out.
[[nodiscard]] std::vector<std::uint16_t> keysFor(std::string_view text);

} // namespace tocca::demonstration
