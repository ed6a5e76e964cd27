#pragma once

#include "Model/Pack.h"
#include "Support/Result.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace tocca::soundpack {

/// One file of a pack, known before it is rendered.
struct PackFile {
    const Pack* pack;
    Slot slot;
    std::size_t variant;

    std::filesystem::path path() const; ///< "holy-panda/press_space_3.wav"
};

/// Every file of `all` packs, in a fixed order.
std::vector<PackFile> filesOf(const std::vector<Pack>& all);

/// The samples of one file, from the selection in Model/Selection.h.
std::vector<std::int16_t> samplesOf(const PackFile& file);

/// Renders every pack into `directory`, which is made when it is missing. The bytes are the same on every run.
///
/// Threads: uses every core and returns when all of them are done.
/// Errors: the first that any file met; the files written before it stay.
Outcome writePacks(const std::vector<Pack>& all, const std::filesystem::path& directory);

} // namespace tocca::soundpack
