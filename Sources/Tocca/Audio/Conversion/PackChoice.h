#pragma once

#include "Audio/Conversion/ConversionPlan.h"
#include "Audio/Conversion/SourceTree.h"
#include "Support/Result.h"

#include <optional>
#include <string>

namespace tocca::audio {

/// The sound pack that somebody means by a folder.
struct PackChoice {
    SourceTree tree;                    ///< the folder, or the one in it that is the pack
    std::optional<ConversionPlan> plan; ///< how it is to be read; none for one that is taken as it is
    bool isKnown = true;                ///< whether it is recognised at all
};

/// Looks for the pack in a folder, and in folders in it as long as there is one that can be meant.
/// Errors: several can be meant, in one line for people that says how many; `name` is what they know the folder by.
[[nodiscard]] Result<PackChoice> choosePack(const SourceTree& tree, const std::string& name);

} // namespace tocca::audio
