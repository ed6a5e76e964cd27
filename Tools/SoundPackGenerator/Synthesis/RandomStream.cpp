#include "Synthesis/RandomStream.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tocca::soundpack {

namespace {

std::uint64_t fnv1a(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char character : text) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 0x100000001b3U;
    }
    return hash;
}

} // namespace

RandomStream::RandomStream(std::string_view name)
    : state_(fnv1a(name))
{}

std::uint64_t RandomStream::bits()
{
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
}

double RandomStream::unit()
{
    return static_cast<double>(bits() >> 11U) * 0x1p-53;
}

double RandomStream::symmetric()
{
    return 2.0 * unit() - 1.0;
}

double RandomStream::normal()
{
    const double radius = unit();
    const double angle = unit();
    return std::sqrt(-2.0 * std::log(radius + 1e-300)) * std::cos(2.0 * std::numbers::pi * angle);
}

double RandomStream::clippedNormal(double limit)
{
    return std::clamp(normal(), -limit, limit);
}

double RandomStream::sign()
{
    return unit() < 0.5 ? 1.0 : -1.0;
}

} // namespace tocca::soundpack
