#pragma once

#include "Platform/Linux/Audio/OutputMeter.h"
#include "Player/RenderSource.h"

#include <atomic>
#include <functional>
#include <memory>

struct pw_core;

namespace tocca::platform::linux {

/// A playback stream of a PipeWire connection: it asks the source for every cycle, in PipeWire's real-time thread.
///
/// Threads: control, but for the rendering itself.
/// Lifetime: ends before its connection; destruction ends the last call of the source before it returns.
class PipeWireStream {
public:
    /// `onLost` is called when the server has given the stream up; it must not destroy the stream before it has returned.
    PipeWireStream(pw_core* core, player::RenderSource& source, OutputMeter& meter,
                   std::function<void()> onLost);
    ~PipeWireStream();
    PipeWireStream(const PipeWireStream&) = delete;
    PipeWireStream& operator=(const PipeWireStream&) = delete;

    /// Connects to the sink that the session prefers, and follows that choice. False when the request cannot even be made.
    [[nodiscard]] bool connect(int quantum, bool isAwake);

    void setAwake(bool isAwake);

    /// Asks the server for cycles of `quantum` frames, without interrupting the sound.
    void requestQuantum(int quantum);

    /// Whether the graph runs at another rate than the stream, so that PipeWire resamples every block.
    [[nodiscard]] bool isResampled() const noexcept;

    /// The graph's rate in Hz, 0 before the first cycle.
    [[nodiscard]] double graphRate() const noexcept { return graphRate_.load(std::memory_order_relaxed); }

private:
    struct Native;

    void negotiated(double sampleRate);
    void process() noexcept REALTIME;

    player::RenderSource& source_;
    OutputMeter& meter_;
    const std::function<void()> onLost_;
    std::unique_ptr<Native> native_;
    int requestedQuantum_ = 0;
    std::atomic<double> sampleRate_{0.0}; // control -> render
    std::atomic<double> graphRate_{0.0};  // render -> control
};

} // namespace tocca::platform::linux
