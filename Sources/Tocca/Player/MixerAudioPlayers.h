#pragma once

#include "Platform/AudioPlayer.h"
#include "Player/AudioOutput.h"
#include "Player/Decoding/PcmCache.h"
#include "Player/Mixing/Mixer.h"

#include <memory>

namespace tocca::player {

/// Plays recordings through a mixer.
///
/// The first use of some bytes decodes them and converts them to the output's rate; later ones cost a look-up.
/// Threads: audio queue; its players may also be destroyed on another thread once that queue has ended.
/// Lifetime: the output and the mixer must outlive it and its players.
class MixerAudioPlayers final : public platform::AudioPlayers {
public:
    MixerAudioPlayers(AudioOutput& output, Mixer& mixer) noexcept;

    [[nodiscard]] Result<std::unique_ptr<platform::AudioPlayer>>
    play(const SharedBytes& data, const platform::Playback& playback) override;

private:
    AudioOutput& output_;
    Mixer& mixer_;
    PcmCache cache_;
};

} // namespace tocca::player
