#pragma once

#include <span>

namespace tocca::soundpack {

/// What the typewriter's return is made of: a bell that rings, a ratchet that purrs, an end stop.
struct CarriageReturn {
    double bellT60;   ///< seconds
    double bellDb;    ///< share of the bell's band in the energy of the whole
    double ratchetHz; ///< teeth a second
    double endStopMs; ///< where the loudest instant after 200 ms lies
};

CarriageReturn carriageReturnOf(std::span<const double> signal);

} // namespace tocca::soundpack
