#pragma once

#include "Platform/StandardOutput.h"

#include <mutex>
#include <string>

namespace tocca::platform::linux {

/// File descriptor 1, one `write` a line.
///
/// Errors: a line is lost when nobody reads the output or its reader lags behind by a full pipe; the program never waits.
class LinuxStandardOutput : public StandardOutput {
public:
    /// Ignores SIGPIPE for the whole process, so that a reader that goes away does not take the program with it.
    explicit LinuxStandardOutput(int descriptor = 1);

    /// Opens the null device for those of the three standard descriptors that are closed; otherwise the next file or socket
    /// opened would get their numbers, and the lines printed. Threads: main, before anything else is opened.
    static void reserveDescriptors() noexcept;

    void printLine(std::string_view line) override;

private:
    const int descriptor_;
    std::mutex mutex_;
    std::string text_; // under mutex_
};

} // namespace tocca::platform::linux
