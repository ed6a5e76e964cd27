#pragma once

#include <string_view>

namespace tocca::platform {

/// The program's diagnostic lines. Threads: any but render, and never while an event is being delivered; lines do not mix.
class StandardOutput {
public:
    virtual ~StandardOutput() = default;

    /// Writes `line` and a line end, and flushes. Errors: a closed or full output is ignored.
    virtual void printLine(std::string_view line) = 0;
};

} // namespace tocca::platform
