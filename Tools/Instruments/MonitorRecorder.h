#pragma once

#include "Instruments/Recording.h"

#include <chrono>
#include <memory>
#include <string>

namespace tocca::instruments {

/// Records what the default sink of the PipeWire server plays, at the graph's own rate and quantum.
///
/// Threads: one at a time.
class MonitorRecorder {
public:
    /// Starts to record at most `capacity` and returns when the sink's first block has arrived.
    /// Errors: throws `std::runtime_error` when none has by `deadline`.
    explicit MonitorRecorder(std::chrono::seconds capacity, std::chrono::milliseconds deadline);
    ~MonitorRecorder();

    MonitorRecorder(const MonitorRecorder&) = delete;
    MonitorRecorder& operator=(const MonitorRecorder&) = delete;

    /// Waits until the sound of the instant `time` (seconds on CLOCK_MONOTONIC) has been recorded.
    [[nodiscard]] bool waitUntil(double time, std::chrono::milliseconds deadline) const;

    /// What has been recorded so far.
    [[nodiscard]] Recording recording() const;

private:
    class Stream;
    std::unique_ptr<Stream> stream_;
};

} // namespace tocca::instruments
