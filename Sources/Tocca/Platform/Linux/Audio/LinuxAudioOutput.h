#pragma once

#include "Platform/Linux/Audio/ControlLoop.h"
#include "Platform/Linux/Audio/OutputMeter.h"
#include "Platform/Linux/Audio/PipeWire/ActivityGate.h"
#include "Platform/Linux/Audio/ServerOutput.h"
#include "Platform/Linux/Audio/SocketWatch.h"
#include "Platform/Linux/System/Threads/Scheduling.h"
#include "Platform/StandardOutput.h"
#include "Player/AudioOutput.h"

#include <atomic>
#include <cstdint>
#include <memory>

namespace tocca::platform::linux {

enum class SoundServer { None, PipeWire, PulseAudio };

struct LinuxAudioOutputOptions {
    double idleSeconds = 30.0;    ///< without activity, after which the output is released
    bool usesPipeWire = true;     ///< false: PulseAudio's protocol alone
    SchedulingAppeal appeal = {}; ///< for the thread that wakes a released output
};

/// What the output is doing.
struct AudioOutputState {
    SoundServer server = SoundServer::None;
    bool isAwake = false;           ///< not released for want of activity
    double sampleRate = 0.0;        ///< Hz
    int quantum = 0;                ///< frames of the last cycle
    std::uint64_t cycles = 0;       ///< rendered so far
    std::uint64_t dropOuts = 0;     ///< interruptions so far
    std::uint64_t missedCycles = 0; ///< lost in them
};

/// The sound output of the desktop: PipeWire where it has a sink, else PulseAudio, else silence until one of them appears.
///
/// Without activity for some time it is released and costs nothing; the next activity wakes it within milliseconds.
/// When there is nothing to play to, it says so once on standard output.
/// Threads: main, unless said otherwise. No member waits for a server, except the destructor for a connection that is closing.
class LinuxAudioOutput final : public player::AudioOutput {
public:
    explicit LinuxAudioOutput(StandardOutput& standardOutput, LinuxAudioOutputOptions options = {});
    ~LinuxAudioOutput() override;

    void start(player::RenderSource& source) override;
    [[nodiscard]] double sampleRate() const noexcept override;
    void noteActivity() noexcept override;

    /// Threads: any.
    [[nodiscard]] AudioOutputState state() const noexcept;

private:
    void begin();
    void choose();
    void superviseFrom(SoundServer before);
    void watchSockets();
    void openPulse();
    void complain();
    void setAwake(bool isAwake);
    void wake();
    void inspect();

    StandardOutput& standardOutput_;
    const LinuxAudioOutputOptions options_;
    OutputMeter meter_;
    std::atomic<SoundServer> server_{SoundServer::None}; // control -> any
    player::RenderSource* source_ = nullptr;
    ControlLoop loop_;
    ControlEvent wakeEvent_;
    ControlTimer begin_;
    ControlTimer grace_;
    ControlTimer inspection_;
    ActivityGate gate_;
    std::unique_ptr<SocketWatch> sockets_;
    std::unique_ptr<ServerOutput> pipeWire_;
    std::unique_ptr<ServerOutput> pulse_;
    Availability pipeWireAvailability_ = Availability::Unknown;
    Availability pulseAvailability_ = Availability::Unknown;
    bool isGraceOver_ = false; // nothing has played for a while
    bool hasPipeWirePlayed_ = false;
    bool hasComplained_ = false;
};

} // namespace tocca::platform::linux
