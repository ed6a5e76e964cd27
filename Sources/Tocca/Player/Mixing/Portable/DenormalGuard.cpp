#include "Player/Mixing/DenormalGuard.h"

namespace tocca::player {

DenormalGuard::DenormalGuard() noexcept
    : previous_(0)
{}

DenormalGuard::~DenormalGuard() = default;

} // namespace tocca::player
