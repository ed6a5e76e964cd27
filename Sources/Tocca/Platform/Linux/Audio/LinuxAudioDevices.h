#pragma once

#include "Platform/AudioDevices.h"
#include "Platform/Linux/Audio/ControlLoop.h"
#include "Platform/Linux/Audio/DeviceServer.h"
#include "Platform/Linux/Audio/SocketWatch.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace tocca::platform::linux {

struct LinuxAudioDevicesOptions {
    bool usesPipeWire = true; ///< false: PulseAudio's protocol alone
};

/// The microphones of the desktop: PipeWire's, and PulseAudio's as well while PipeWire has no devices.
///
/// A thread of its own waits for the servers' events and sleeps while nothing changes.
/// Threads: main.
class LinuxAudioDevices final : public AudioDevices {
public:
    explicit LinuxAudioDevices(LinuxAudioDevicesOptions options = {});
    ~LinuxAudioDevices() override;

    [[nodiscard]] Result<std::vector<AudioDevice>> devices() const override;

private:
    void begin();
    void settle();
    void openPulse();

    const LinuxAudioDevicesOptions options_;
    mutable std::mutex mutex_;
    std::optional<std::vector<AudioDevice>> table_; // control -> main, under mutex_
    ControlLoop loop_{"tocca-devices"};
    ControlTimer begin_;
    std::unique_ptr<SocketWatch> sockets_; // control, as is the rest
    std::unique_ptr<DeviceServer> pipeWire_;
    std::unique_ptr<DeviceServer> pulse_;
    std::optional<DeviceServer::Devices> ofPipeWire_;
    std::optional<DeviceServer::Devices> ofPulse_;
};

} // namespace tocca::platform::linux
