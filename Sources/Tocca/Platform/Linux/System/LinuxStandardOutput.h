#pragma once

#include "Platform/StandardOutput.h"

#include <mutex>
#include <string>

namespace tocca::platform::linux {

/// The standard output, one `write` per line.
///
/// Errors: the program never waits; a line is lost when nobody reads the output, or when its reader lags behind by a full pipe.
class LinuxStandardOutput : public StandardOutput {
public:
    /// Ignores SIGPIPE in the whole process, so that a reader that goes away does not end the program.
    explicit LinuxStandardOutput(int descriptor = 1);

    /// Opens the null device in place of any of the three standard descriptors that is closed. Otherwise the next file or socket would get
    /// its number, and with it the printed lines. Threads: main. Order: before anything else is opened.
    static void reserveDescriptors() noexcept;

    void printLine(std::string_view line) override;

private:
    const int descriptor_;
    std::mutex mutex_;
    std::string text_; // under mutex_
};

} // namespace tocca::platform::linux
