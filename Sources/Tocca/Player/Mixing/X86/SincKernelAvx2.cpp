#include "Player/Mixing/X86/SincKernelAvx2.h"

#include "Player/Mixing/SincKernelBody.h"

namespace tocca::player {

SincKernel avx2SincKernel() noexcept
{
    return {.mono = &readMono<Eight>, .stereo = &readStereo<Eight>};
}

} // namespace tocca::player
