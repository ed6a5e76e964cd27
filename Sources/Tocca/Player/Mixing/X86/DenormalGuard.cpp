#include "Player/Mixing/DenormalGuard.h"

#include <xmmintrin.h>

namespace tocca::player {

namespace {

constexpr std::uint32_t kFlushToZero = 1U << 15U;
constexpr std::uint32_t kDenormalsAreZero = 1U << 6U;

} // namespace

DenormalGuard::DenormalGuard() noexcept
    : previous_(_mm_getcsr())
{
    _mm_setcsr(previous_ | kFlushToZero | kDenormalsAreZero);
}

DenormalGuard::~DenormalGuard()
{
    _mm_setcsr(previous_);
}

} // namespace tocca::player
