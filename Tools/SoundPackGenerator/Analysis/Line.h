#pragma once

#include <span>

namespace tocca::soundpack {

/// Slope of the straight line with the least squared distance to the points.
double slopeOf(std::span<const double> x, std::span<const double> y);

} // namespace tocca::soundpack
