#pragma once

#include "Platform/AudioPlayer.h"
#include "Platform/Clock.h"
#include "Player/AudioOutput.h"
#include "Player/Mixing/Mixer.h"
#include "Player/Mixing/VoiceRequest.h"

#include <memory>
#include <optional>

namespace tocca::player {

/// Plays a decoded recording through a mixer.
///
/// Volume, pan and rate count from the next `play` on. Playing again while the recording sounds does nothing.
/// Threads: audio queue; destruction also on another thread once that queue has ended.
class MixerAudioPlayer final : public platform::AudioPlayer {
public:
    MixerAudioPlayer(AudioOutput& output, const platform::Clock& clock, Mixer& mixer,
                     std::shared_ptr<const PcmClip> clip) noexcept;
    ~MixerAudioPlayer() override;

    void setEnableRate(bool isEnabled) override;
    void setRate(float rate) override;
    void setVolume(float volume) override;
    void setPan(float pan) override;
    void prepareToPlay() override;
    void play(std::optional<double> eventTime) override;

private:
    AudioOutput& output_;
    const platform::Clock& clock_;
    Mixer& mixer_;
    VoiceRequest request_;
    bool isRateEnabled_ = false;
    std::optional<VoiceTicket> ticket_;
};

} // namespace tocca::player
