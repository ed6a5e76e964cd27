#pragma once

#include "Audio/Conversion/ConversionPlan.h"
#include "Audio/Conversion/Strike.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tocca::audio {

/// A take that was listened to.
struct HeardTake {
    Take take;
    Strike strike;
};

/// The takes of one slot that belong together, at most `most`, in their order: without repetitions, without what is far louder,
/// softer or longer than the others, and of the rest those nearest to the middle. Adds a line to `remarks` for each that is left out.
[[nodiscard]] std::vector<HeardTake> alike(std::vector<HeardTake> takes, std::size_t most,
                                           std::vector<std::string>& remarks);

/// Units: those of the values; 0 for none.
[[nodiscard]] double medianOf(std::vector<double> values);

} // namespace tocca::audio
