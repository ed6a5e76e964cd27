#include "Player/Mixing/SincKernel.h"
#include "Player/Mixing/X86/SincKernelAvx2.h"

namespace tocca::player {

SincKernel bestSincKernel() noexcept
{
    const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("fma") != 0;
    return hasAvx2 ? avx2SincKernel() : baselineSincKernel();
}

} // namespace tocca::player
