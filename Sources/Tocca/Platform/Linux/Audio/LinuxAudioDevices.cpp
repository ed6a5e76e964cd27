#include "Platform/Linux/Audio/LinuxAudioDevices.h"

#include "Platform/Linux/Audio/PipeWire/PipeWireDevices.h"
#include "Platform/Linux/Audio/PulseAudio/PulseDevices.h"

namespace tocca::platform::linux {

LinuxAudioDevices::LinuxAudioDevices(LinuxAudioDevicesOptions options)
    : options_(options)
    , begin_(loop_, [this] { begin(); })
{
    begin_.once(0.0);
    loop_.start();
}

LinuxAudioDevices::~LinuxAudioDevices()
{
    loop_.stop();
    pulse_.reset();
    pipeWire_.reset();
    sockets_.reset();
}

Result<std::vector<AudioDevice>> LinuxAudioDevices::devices() const
{
    const std::lock_guard lock(mutex_);
    if (!table_) {
        return Error{"no sound server answers"};
    }
    return *table_;
}

void LinuxAudioDevices::begin()
{
    sockets_ = std::make_unique<SocketWatch>(loop_, [this] {
        for (DeviceServer* const server : {pipeWire_.get(), pulse_.get()}) {
            if (server != nullptr) {
                server->lookNow();
            }
        }
    });
    if (!options_.usesPipeWire) {
        openPulse();
        return;
    }
    pipeWire_ = std::make_unique<PipeWireDevices>(loop_, [this](const auto& devices) {
        ofPipeWire_ = devices;
        settle();
    });
}

void LinuxAudioDevices::settle()
{
    if (ofPipeWire_ && ofPipeWire_->hasAny) {
        // Whoever speaks PulseAudio's protocol now is PipeWire itself.
        pulse_.reset();
        ofPulse_.reset();
    } else if (!pulse_) {
        openPulse();
    }
    std::optional<std::vector<AudioDevice>> table;
    for (const auto* const devices : {&ofPipeWire_, &ofPulse_}) {
        if (*devices) {
            table = table ? std::move(table) : std::vector<AudioDevice>();
            table->insert(table->end(), (*devices)->inputs.begin(), (*devices)->inputs.end());
        }
    }
    const std::lock_guard lock(mutex_);
    table_ = std::move(table);
}

void LinuxAudioDevices::openPulse()
{
    pulse_ = std::make_unique<PulseDevices>(loop_, [this](const auto& devices) {
        ofPulse_ = devices;
        settle();
    });
}

} // namespace tocca::platform::linux
