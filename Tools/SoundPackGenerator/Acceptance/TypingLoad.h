#pragma once

#include "Acceptance/Recording.h"

#include <ostream>
#include <vector>

namespace tocca::soundpack {

/// How somebody types. Units: strokes a second, seconds.
struct Typing {
    double strokesPerSecond = 8;
    double seconds = 600;
    bool withReleases = true;
};

/// How often overlapping strokes of a pack at full volume reach the limiter of the output.
struct TypingLoad {
    int strokes;
    int strokesOver;    ///< presses followed by a true peak above the threshold before the next press
    double secondsOver; ///< in samples that are above it
    double truePeakDb;  ///< the highest, dBTP
};

/// The threshold of the output's limiter, dBTP.
inline constexpr double kLimiterDb = -0.5;

/// Types random keys and variants, each at one of five playback rates from 0.98 to 1.02, and sums what overlaps.
///
/// True peak is measured at four times the sample rate. The same input gives the same result.
TypingLoad typingLoad(const PackRecordings& pack, const Typing& typing);

/// For every pack: presses alone and with releases, at 8 and at 15 strokes a second.
void printTypingLoads(std::ostream& out, const std::vector<PackRecordings>& packs);

} // namespace tocca::soundpack
