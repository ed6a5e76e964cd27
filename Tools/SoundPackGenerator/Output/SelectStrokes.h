#pragma once

#include "Model/Pack.h"

#include <ostream>
#include <vector>

namespace tocca::soundpack {

/// The strokes of a slot that go into its pack, and the gain that makes them as loud as they are meant to be.
struct Choice {
    std::vector<int> indices;
    double gainDb;
};

/// Renders 48 strokes of a slot and keeps the first ones near their medians in brightness and loudness.
///
/// One gain for all of them leaves the differences of a finger in place.
Choice selectStrokes(const Pack& pack, const Slot& slot);

/// Prints the choice for every slot of every pack as the table in Model/Selection.cpp. Takes about half a minute.
void printSelections(std::ostream& out, const std::vector<Pack>& all);

} // namespace tocca::soundpack
