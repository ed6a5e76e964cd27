#pragma once

#include <cmath>

namespace tocca::soundpack {

/// The factor on an amplitude that `db` stands for.
inline double gain(double db)
{
    return std::pow(10.0, db / 20.0);
}

/// Decibels of an amplitude; minus infinity for 0.
inline double decibels(double amplitude)
{
    return 20.0 * std::log10(amplitude);
}

/// Decibels of a power or an energy; minus infinity for 0.
inline double powerDecibels(double power)
{
    return 10.0 * std::log10(power);
}

} // namespace tocca::soundpack
