#include "Model/Packs.h"

namespace tocca::soundpack {

const std::vector<Pack>& packs()
{
    static const std::vector<Pack> all{holyPanda(), nkCream(), mxBrown(), typewriter(), mxBlue()};
    return all;
}

} // namespace tocca::soundpack
