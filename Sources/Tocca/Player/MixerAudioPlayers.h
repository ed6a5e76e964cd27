#pragma once

#include "Platform/AudioPlayer.h"
#include "Platform/Clock.h"
#include "Player/AudioOutput.h"
#include "Player/Decoding/PcmCache.h"
#include "Player/Mixing/Mixer.h"

#include <memory>

namespace tocca::player {

/// Makes players that share a mixer and the recordings decoded for it.
///
/// The first player for some bytes decodes them and converts them to the output's rate; later ones cost a look-up.
/// Threads: audio queue.
/// Lifetime: the output, the clock and the mixer must outlive it and its players.
class MixerAudioPlayers final : public platform::AudioPlayers {
public:
    MixerAudioPlayers(AudioOutput& output, const platform::Clock& clock, Mixer& mixer) noexcept;

    [[nodiscard]] Result<std::unique_ptr<platform::AudioPlayer>> make(const SharedBytes& data) override;

private:
    AudioOutput& output_;
    const platform::Clock& clock_;
    Mixer& mixer_;
    PcmCache cache_;
};

} // namespace tocca::player
