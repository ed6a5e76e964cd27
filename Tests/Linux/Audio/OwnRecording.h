#pragma once

#include <atomic>
#include <memory>
#include <string>

namespace tocca::platform::linux {

/// Records from a microphone of PipeWire in this very process, for as long as it lives.
class OwnRecording {
public:
    explicit OwnRecording(const std::string& microphone);
    OwnRecording(const OwnRecording&) = delete;
    OwnRecording& operator=(const OwnRecording&) = delete;
    ~OwnRecording();

    /// Whether anything has been recorded.
    [[nodiscard]] bool hasHeard() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tocca::platform::linux
