#pragma once

#include "Model/Stroke.h"

#include <cstdint>
#include <vector>

namespace tocca::soundpack {

/// Turns a rendered stroke into the samples of a file: level, soft ceiling at -3.1 dBFS, cut at silence, fade, no offset.
std::vector<std::int16_t> finish(const std::vector<double>& rendered, double gainDb, const Stroke& stroke);

/// The same before the rounding to 16 bits.
std::vector<double> finishUnrounded(const std::vector<double>& rendered, double gainDb, const Stroke& stroke);

} // namespace tocca::soundpack
