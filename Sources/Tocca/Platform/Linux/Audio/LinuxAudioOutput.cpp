#include "Platform/Linux/Audio/LinuxAudioOutput.h"

#include "Platform/Linux/Audio/PipeWire/PipeWireOutput.h"
#include "Platform/Linux/Audio/PulseAudio/PulseOutput.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/Threads/Scheduling.h"

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr double kInspectionInterval = 0.25;

/// How long a server may be restarting, or its session manager finding the devices, before others are tried.
constexpr double kGrace = 2.0;

constexpr const char* kComplaint = "No sound: neither PipeWire nor PulseAudio has an output to play to. "
                                   "Tocca goes on silently and will be heard as soon "
                                   "as there is one.";

bool isMissing(Availability availability)
{
    return availability == Availability::Absent || availability == Availability::NoSink;
}

} // namespace

LinuxAudioOutput::LinuxAudioOutput(StandardOutput& standardOutput, LinuxAudioOutputOptions options)
    : standardOutput_(standardOutput)
    , options_(std::move(options))
    , wakeEvent_(loop_, [this] { wake(); })
    , begin_(loop_, [this] { begin(); })
    , grace_(loop_,
             [this] {
                 isGraceOver_ = true;
                 choose();
             })
    , inspection_(loop_, [this] { inspect(); })
    , gate_(options_.idleSeconds, [this] { wakeEvent_.signal(); })
{}

LinuxAudioOutput::~LinuxAudioOutput()
{
    loop_.stop();
    pulse_.reset();
    pipeWire_.reset();
    sockets_.reset();
}

void LinuxAudioOutput::start(player::RenderSource& source)
{
    source_ = &source;
    begin_.once(0.0);
    loop_.start();
}

double LinuxAudioOutput::sampleRate() const noexcept
{
    return meter_.sampleRate();
}

void LinuxAudioOutput::noteActivity() noexcept
{
    gate_.note();
}

AudioOutputState LinuxAudioOutput::state() const noexcept
{
    return {.server = server_.load(),
            .isAwake = gate_.isOpen(),
            .sampleRate = meter_.sampleRate(),
            .quantum = meter_.quantum(),
            .cycles = meter_.cycles(),
            .dropOuts = meter_.dropOuts(),
            .missedCycles = meter_.missedCycles()};
}

void LinuxAudioOutput::begin()
{
    // A stroke waits for this thread when it wakes the output, and a busy computer would let it wait for long.
    adoptThread("tocca-audio", ThreadRole::None, true, options_.appeal);
    grace_.once(kGrace);
    watchSockets();
    if (!options_.usesPipeWire) {
        pipeWireAvailability_ = Availability::Absent;
        choose();
        return;
    }
    pipeWire_ = std::make_unique<PipeWireOutput>(loop_, *source_, meter_, [this](Availability availability) {
        pipeWireAvailability_ = availability;
        choose();
    });
}

void LinuxAudioOutput::choose()
{
    const SoundServer before = server_.load();
    if (pipeWireAvailability_ == Availability::Ready) {
        // PipeWire renders its first block after this call has returned, PulseAudio its last one before.
        pulse_.reset();
        pulseAvailability_ = Availability::Unknown;
        server_.store(SoundServer::PipeWire);
    } else {
        const bool isPulseOnly = pipeWireAvailability_ == Availability::Absent && !hasPipeWirePlayed_;
        if (!pulse_ && isMissing(pipeWireAvailability_) && (isGraceOver_ || isPulseOnly)) {
            openPulse();
        }
        server_.store(pulseAvailability_ == Availability::Ready ? SoundServer::PulseAudio
                                                                : SoundServer::None);
    }
    hasPipeWirePlayed_ = hasPipeWirePlayed_ || server_.load() == SoundServer::PipeWire;
    if (server_.load() != before) {
        superviseFrom(before);
    }
    if (isGraceOver_ && isMissing(pipeWireAvailability_) && isMissing(pulseAvailability_)) {
        complain();
    }
}

void LinuxAudioOutput::superviseFrom(SoundServer before)
{
    if (server_.load() == SoundServer::PipeWire) {
        sockets_.reset();
    } else if (!sockets_) {
        watchSockets();
    }
    if (server_.load() == SoundServer::None) {
        inspection_.cancel();
        isGraceOver_ = false;
        grace_.once(kGrace);
    } else if (before == SoundServer::None) {
        grace_.cancel();
        if (gate_.isOpen()) {
            inspection_.every(kInspectionInterval);
        }
    }
}

void LinuxAudioOutput::watchSockets()
{
    sockets_ = std::make_unique<SocketWatch>(loop_, [this] {
        for (ServerOutput* const server : {pipeWire_.get(), pulse_.get()}) {
            if (server != nullptr) {
                server->lookNow();
            }
        }
    });
}

void LinuxAudioOutput::openPulse()
{
    pulse_ = std::make_unique<PulseOutput>(loop_, *source_, meter_, [this](Availability availability) {
        pulseAvailability_ = availability;
        choose();
    });
    pulse_->setAwake(gate_.isOpen());
}

void LinuxAudioOutput::complain()
{
    if (!hasComplained_) {
        hasComplained_ = true;
        standardOutput_.printLine(kComplaint);
    }
}

void LinuxAudioOutput::setAwake(bool isAwake)
{
    for (ServerOutput* const server : {pipeWire_.get(), pulse_.get()}) {
        if (server != nullptr) {
            server->setAwake(isAwake);
        }
    }
}

void LinuxAudioOutput::wake()
{
    gate_.open(monotonicSeconds());
    setAwake(true);
    if (server_.load() != SoundServer::None) {
        inspection_.every(kInspectionInterval);
    }
}

void LinuxAudioOutput::inspect()
{
    const double now = monotonicSeconds();
    if (gate_.closeIfIdle(now)) {
        inspection_.cancel();
        setAwake(false);
        return;
    }
    for (ServerOutput* const server : {pipeWire_.get(), pulse_.get()}) {
        if (server != nullptr) {
            server->inspect(now);
        }
    }
}

} // namespace tocca::platform::linux
