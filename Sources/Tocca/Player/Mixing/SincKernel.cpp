#include "Player/Mixing/SincKernel.h"

#include "Player/Mixing/SincKernelBody.h"

namespace tocca::player {

SincKernel baselineSincKernel() noexcept
{
    return {.mono = &readMono<Four>, .stereo = &readStereo<Four>};
}

} // namespace tocca::player
