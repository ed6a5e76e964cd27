#include "Player/Mixing/SincKernel.h"

namespace tocca::player {

SincKernel bestSincKernel() noexcept
{
    return baselineSincKernel();
}

} // namespace tocca::player
