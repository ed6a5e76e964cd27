#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/SoundPackLoader.h"
#include "ClickPack.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Host.h"
#include "Platform/Linux/Audio/LinuxAudioOutput.h"
#include "Platform/Linux/LinuxHost.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"
#include "Player/Mixer.h"
#include "Player/MixerAudioPlayers.h"
#include "Player/StrokeTrace.h"

#include <utility>
#include <vector>

namespace tocca::latency {

/// The program's own parts between the key and the sink, put together as the program does, with a trace in the mixer.
///
/// Threads: main, but for the members that say otherwise.
class Subject {
public:
    Subject();

    /// From a stroke's event time, which is never later than its arrival in the capture thread, to the call that wrote its
    /// first sample; for every stroke since this was asked last.
    /// Units: seconds. Threads: the measuring one.
    [[nodiscard]] std::vector<double> takeTimesToFirstSample();

    /// Threads: any.
    [[nodiscard]] platform::linux::AudioOutputState output() const noexcept { return output_.state(); }

    /// Runs `task` on the main thread. Threads: any.
    void post(Task task) { system_.mainQueue().post(std::move(task)); }

private:
    ClickPack pack_;
    player::StrokeTrace trace_;
    platform::linux::LinuxHost system_;
    platform::linux::LinuxStandardOutput standardOutput_;
    player::Mixer mixer_;
    platform::linux::LinuxAudioOutput output_;
    player::MixerAudioPlayers players_;
    platform::Host host_;
    audio::SoundPackLoader loader_;
    audio::AudioEngine engine_;
    keyboard::KeyboardMonitor monitor_;
};

} // namespace tocca::latency
