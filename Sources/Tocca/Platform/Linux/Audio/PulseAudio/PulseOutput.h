#pragma once

#include "Platform/Linux/Audio/BlockClock.h"
#include "Platform/Linux/Audio/PulseAudio/PulseLoop.h"
#include "Platform/Linux/Audio/ServerOutput.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

struct pa_context;
struct pa_stream;

namespace tocca::platform::linux {

/// The output through PulseAudio, or whatever speaks its protocol.
///
/// It renders on the client library's thread, which has no real-time scheduling; so blocks are larger than PipeWire's.
class PulseOutput final : public ServerOutput {
public:
    PulseOutput(ControlLoop& loop, player::RenderSource& source, OutputMeter& meter, Observer observer);
    ~PulseOutput() override;

    void lookNow() override;
    void setAwake(bool isAwake) override;
    void inspect(double now) override;

private:
    void connect() override;
    void disconnect();
    void lose();
    void settle();
    void openStream();
    void subscribe();
    void countSinks();
    void streamChanged();
    void write(std::size_t bytes) noexcept;

    ControlEvent news_;
    BlockClock clock_; // client library's thread
    pa_context* context_ = nullptr;
    pa_stream* stream_ = nullptr;
    int countedSinks_ = 0;                                    // client library's thread
    std::atomic<Availability> server_{Availability::Unknown}; // client library's thread -> control
    PulseLoop loop_; // last, because its thread uses the members above
};

} // namespace tocca::platform::linux
