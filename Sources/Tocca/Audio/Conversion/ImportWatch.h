#pragma once

#include <functional>

namespace tocca::audio {

/// Who follows an import while it is under way. Threads: called on the one that imports.
struct ImportWatch {
    std::function<bool()> isCancelled = [] { return false; };
    std::function<void(double)> progress = [](double) {}; ///< the share that is done, 0…1
};

} // namespace tocca::audio
