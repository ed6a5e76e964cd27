#include "Acceptance/Checks.h"

#include <algorithm>
#include <iterator>

namespace tocca::soundpack {

std::vector<Check> allChecks(const std::vector<PackRecordings>& packs)
{
    std::vector<Check> checks = fileChecks(packs);
    std::ranges::move(slotChecks(packs), std::back_inserter(checks));
    std::ranges::move(characterChecks(packs), std::back_inserter(checks));
    std::ranges::sort(checks, {}, &Check::number);
    return checks;
}

} // namespace tocca::soundpack
