#include "Player/MixerAudioPlayer.h"

#include "Support/ThreadRole.h"

#include <utility>

namespace tocca::player {

MixerAudioPlayer::MixerAudioPlayer(AudioOutput& output, const platform::Clock& clock, Mixer& mixer,
                                   std::shared_ptr<const PcmClip> clip) noexcept
    : output_(output)
    , clock_(clock)
    , mixer_(mixer)
    , request_{.clip = std::move(clip)}
{}

MixerAudioPlayer::~MixerAudioPlayer()
{
    if (ticket_) {
        mixer_.stop(*ticket_);
    }
}

void MixerAudioPlayer::setEnableRate(bool isEnabled)
{
    isRateEnabled_ = isEnabled;
}

void MixerAudioPlayer::setRate(float rate)
{
    request_.rate = rate;
}

void MixerAudioPlayer::setVolume(float volume)
{
    request_.volume = volume;
}

void MixerAudioPlayer::setPan(float pan)
{
    request_.pan = pan;
}

void MixerAudioPlayer::prepareToPlay()
{}

void MixerAudioPlayer::play(std::optional<double> eventTime)
{
    requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayer::play");
    output_.noteActivity();
    mixer_.reclaim();
    if (ticket_ && mixer_.isSounding(*ticket_)) {
        return;
    }
    VoiceRequest request = request_;
    request.eventTime = eventTime.value_or(clock_.now());
    request.rate = isRateEnabled_ ? request_.rate : 1.0F;
    ticket_ = mixer_.start(std::move(request));
}

} // namespace tocca::player
