#pragma once

#include <cstdint>
#include <string_view>

namespace tocca::soundpack {

/// A stream of random numbers that belongs to one named part of a sound.
///
/// The name alone decides the numbers, so a sound does not depend on what was rendered before it, and the same program
/// writes the same bytes for ever. Changing a name, or the order of draws from a stream, changes the sounds.
/// Source: SplitMix64, Steele, Lea and Flood 2014; FNV-1a, Fowler, Noll and Vo 1991; Box and Muller 1958.
class RandomStream {
public:
    explicit RandomStream(std::string_view name);

    std::uint64_t bits();

    /// Even in 0…1, 1 excluded.
    double unit();

    /// Even in -1…1.
    double symmetric();

    /// Normal, mean 0, deviation 1.
    double normal();

    /// Normal, with anything beyond `limit` put at `limit`.
    double clippedNormal(double limit = 2.0);

    /// -1 or 1, each half of the time.
    double sign();

private:
    std::uint64_t state_;
};

} // namespace tocca::soundpack
