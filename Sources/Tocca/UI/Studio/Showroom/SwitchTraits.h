#pragma once

#include <string_view>

namespace tocca::ui {

/// The kind of switch that a name lets expect: "Clicky", "Tactile", "Linear", "Vintage" or "Novelty". Threads: any.
[[nodiscard]] std::string_view getTag(std::string_view name);

/// The actuation force that a name lets expect: "45g". Threads: any.
[[nodiscard]] std::string_view getWeight(std::string_view name);

/// The mechanism that a name lets expect: "Buckling Spring". Threads: any.
[[nodiscard]] std::string_view getProfile(std::string_view name);

} // namespace tocca::ui
