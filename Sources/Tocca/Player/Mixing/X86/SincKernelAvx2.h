#pragma once

#include "Player/Mixing/SincKernel.h"

namespace tocca::player {

/// The kernel for processors with AVX2 and FMA; calling its members on others ends the program.
[[nodiscard]] SincKernel avx2SincKernel() noexcept;

} // namespace tocca::player
