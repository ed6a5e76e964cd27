#include "Player/SincKernel.h"

#include "Player/SincKernelBody.h"

namespace tocca::player {

SincKernel baselineSincKernel() noexcept
{
    return {.mono = &readMono<Four>, .stereo = &readStereo<Four>};
}

} // namespace tocca::player
