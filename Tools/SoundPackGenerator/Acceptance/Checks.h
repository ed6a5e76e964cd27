#pragma once

#include "Acceptance/Check.h"
#include "Acceptance/Recording.h"

#include <vector>

namespace tocca::soundpack {

/// What every file must keep: format, length, level, edges, spectrum (checks 1 to 9).
std::vector<Check> fileChecks(const std::vector<PackRecordings>& packs);

/// What the variants of a slot must keep among each other, and slots in a pack (checks 10 to 15 and 20).
std::vector<Check> slotChecks(const std::vector<PackRecordings>& packs);

/// What makes each pack what it claims to be, and the packs different (checks 16 to 19 and 21 to 26).
std::vector<Check> characterChecks(const std::vector<PackRecordings>& packs);

/// All of them, in the order of their numbers. Check 27, that two renders are the same bytes, needs two renders.
std::vector<Check> allChecks(const std::vector<PackRecordings>& packs);

} // namespace tocca::soundpack
