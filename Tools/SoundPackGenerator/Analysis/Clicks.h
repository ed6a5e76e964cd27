#pragma once

#include <span>

namespace tocca::soundpack {

/// A stretch of time after the onset, in ms.
struct TimeSpan {
    double fromMs;
    double toMs;
};

/// The loudest instant of a stretch of `clickEnvelopeDb`.
struct Click {
    double atMs;
    double db;
};

Click loudestClick(std::span<const double> clickEnvelopeDb, TimeSpan span);

/// The lowest level between two clicks. Units: dB.
double valleyBetween(std::span<const double> clickEnvelopeDb, const Click& first, const Click& second);

} // namespace tocca::soundpack
