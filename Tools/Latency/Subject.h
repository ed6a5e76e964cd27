#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "ClickPack.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Host.h"
#include "Platform/Linux/Audio/LinuxAudioOutput.h"
#include "Platform/Linux/LinuxHost.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"
#include "Player/MixerAudioPlayers.h"
#include "Player/Mixing/Mixer.h"
#include "Player/Mixing/StrokeTrace.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QQmlEngine>

#include <atomic>
#include <cstdint>
#include <pthread.h>
#include <utility>
#include <vector>

namespace tocca::latency {

/// The program's own parts between the key and the sink, put together as the program does, with a trace in the mixer, and the two
/// overlays, hidden at first.
///
/// Threads: main, but for the members that say otherwise.
/// Lifetime: begins after the application object.
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

    /// Has both overlays answer strokes from now on, or neither.
    void setOverlaysEnabled(bool enabled);

    /// How many times an overlay has been painted. Threads: any.
    [[nodiscard]] std::uint64_t framesPainted() const noexcept { return framesPainted_; }

    /// How long the main thread, which paints, has computed. Units: seconds. Threads: any.
    [[nodiscard]] double mainThreadWork() const noexcept;

private:
    void countFrames();

    ClickPack pack_;
    player::StrokeTrace trace_;
    platform::linux::LinuxHost system_{"latency", QByteArray()};
    platform::linux::LinuxStandardOutput standardOutput_;
    player::Mixer mixer_;
    platform::linux::LinuxAudioOutput output_;
    player::MixerAudioPlayers players_;
    platform::Host host_;
    audio::SoundPackLoader loader_;
    audio::AudioEngine engine_;
    keyboard::KeyboardMonitor monitor_;
    QQmlEngine views_;
    ui::NotchAcousticHUDController hud_;
    ui::SpatialUnderglowController underglow_;
    std::atomic<std::uint64_t> framesPainted_{0};
    pthread_t mainThread_ = pthread_self();
};

} // namespace tocca::latency
