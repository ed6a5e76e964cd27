#pragma once

#include "Support/Result.h"

#include <cstddef>
#include <span>
#include <string>

namespace tocca::audio {

/// What a pack's manifest says of it; a text that it does not give is empty.
struct PackManifest {
    static constexpr std::size_t kLargest = std::size_t{256} * 1024; ///< bytes
    static constexpr std::size_t kDeepest = 512;                     ///< levels of nesting

    std::string name;
    std::string description;

    /// Reads a strict JSON object; of keys that occur twice the later counts.
    /// Errors: why it is none: too large, too deep, not UTF-8, not JSON, numbers beyond 64 bits, not an object.
    [[nodiscard]] static Result<PackManifest> parse(std::span<const std::byte> json);
};

} // namespace tocca::audio
