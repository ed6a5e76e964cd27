#pragma once

#include "Model/Slot.h"

#include <string_view>
#include <vector>

namespace tocca::soundpack {

/// Which strokes of a slot became its variants, and the one gain that puts them at the slot's loudness.
struct Selection {
    std::string_view folder;
    Slot slot;
    std::vector<int> indices; ///< as given to `render`
    double gainDb;
};

/// What `sound-pack-generator --select` printed for the parameters in this folder. It goes stale with any of them.
const std::vector<Selection>& selections();

/// The selection of one slot. Errors: std::out_of_range when there is none.
const Selection& selectionOf(std::string_view folder, const Slot& slot);

} // namespace tocca::soundpack
