#pragma once

#include "Model/Pack.h"

#include <vector>

namespace tocca::soundpack {

/// Renders stroke number `index` of a slot, at kSampleRate, before its level is set (see Finish.h).
///
/// Every index is another stroke on the same keyboard; the same index is always the same samples.
/// Threads: any, also at once.
/// Errors: std::out_of_range when an impact drives a bank that the pack does not have.
std::vector<double> render(const Pack& pack, const Slot& slot, int index);

} // namespace tocca::soundpack
