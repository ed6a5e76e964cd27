#pragma once

#include "Acceptance/Check.h"
#include "Acceptance/Recording.h"

#include <ostream>
#include <vector>

namespace tocca::soundpack {

/// One line per slot: octaves, loudness, peak, duration, edges and how far its variants differ.
void printSlots(std::ostream& out, const std::vector<PackRecordings>& packs);

/// One line per limit: range, worst value, where, and whether it holds.
void printChecks(std::ostream& out, const std::vector<Check>& checks);

/// Mean distances of the standard presses of every two packs; the diagonal is the spread inside a pack.
void printDistances(std::ostream& out, const std::vector<PackRecordings>& packs);

/// How much loudness the standard presses lose on a speaker that gives nothing below 250 or 500 Hz.
void printSmallSpeakers(std::ostream& out, const std::vector<PackRecordings>& packs);

} // namespace tocca::soundpack
