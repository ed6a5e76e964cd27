#include "Player/MixerAudioPlayers.h"

#include "Support/ThreadRole.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace tocca::player {

namespace {

// Room for any pack of keys: one of a hundred recordings of 0.3 s takes 5 MB.
constexpr std::size_t kCacheBytes = std::size_t{64} << 20U;

/// A request to the mixer, which ends with it.
class MixerAudioPlayer final : public platform::AudioPlayer {
public:
    MixerAudioPlayer(Mixer& mixer, std::optional<VoiceTicket> ticket) noexcept
        : mixer_(mixer)
        , ticket_(ticket)
    {}

    MixerAudioPlayer(const MixerAudioPlayer&) = delete;
    MixerAudioPlayer& operator=(const MixerAudioPlayer&) = delete;

    ~MixerAudioPlayer() override
    {
        if (ticket_) {
            mixer_.stop(*ticket_);
        }
    }

private:
    Mixer& mixer_;
    const std::optional<VoiceTicket> ticket_;
};

} // namespace

MixerAudioPlayers::MixerAudioPlayers(AudioOutput& output, Mixer& mixer) noexcept
    : output_(output)
    , mixer_(mixer)
    , cache_(kCacheBytes)
{}

Result<std::unique_ptr<platform::AudioPlayer>> MixerAudioPlayers::play(const SharedBytes& data,
                                                                       const platform::Playback& playback)
{
    requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayers::play");
    mixer_.reclaim();
    auto clip = cache_.find(data, output_.sampleRate());
    if (!clip) {
        return clip.error();
    }
    output_.noteActivity();
    return std::unique_ptr<platform::AudioPlayer>(
        std::make_unique<MixerAudioPlayer>(mixer_, mixer_.start(std::move(clip.value()), playback)));
}

} // namespace tocca::player
