#pragma once

#include "Support/Realtime.h"
#include "Support/SpscRing.h"

#include <cstddef>
#include <optional>

namespace tocca::player {

/// Collects when each stroke asked for sound and when its first sample was written, for the latency tool.
///
/// Units: seconds on the platform's clock.
/// Threads: `record`: render. `next`: one other.
/// Real-time: `record` is wait-free; a full trace ignores it.
class StrokeTrace {
public:
    struct Entry {
        double eventTime = 0.0;  ///< when the stroke happened
        double renderedAt = 0.0; ///< when the call began that wrote its first sample
        double frameTime = 0.0;  ///< what that sample's place in its cycle stands for
    };

    explicit StrokeTrace(std::size_t capacity)
        : entries_(capacity)
    {}

    void record(const Entry& entry) noexcept REALTIME { entries_.push(entry); }

    /// The oldest entry not yet taken, if there is one.
    [[nodiscard]] std::optional<Entry> next() noexcept
    {
        const Entry* oldest = entries_.front();
        if (oldest == nullptr) {
            return std::nullopt;
        }
        const Entry entry = *oldest;
        entries_.pop();
        return entry;
    }

private:
    SpscRing<Entry> entries_; // render -> the tool's thread
};

} // namespace tocca::player
