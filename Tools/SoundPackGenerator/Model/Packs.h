#pragma once

#include "Model/Pack.h"

#include <vector>

namespace tocca::soundpack {

Pack holyPanda();
Pack nkCream();
Pack mxBrown();
Pack mxBlue();
Pack typewriter();

/// The built-in packs, in order of rising brightness.
const std::vector<Pack>& packs();

} // namespace tocca::soundpack
