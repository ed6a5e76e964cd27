#include "Player/MixerAudioPlayers.h"

#include "Player/MixerAudioPlayer.h"
#include "Support/ThreadRole.h"

#include <cstddef>
#include <utility>

namespace tocca::player {

namespace {

// Room for several packs: one of a hundred recordings of 0.3 s takes 5 MB.
constexpr std::size_t kCacheBytes = std::size_t{16} << 20U;

} // namespace

MixerAudioPlayers::MixerAudioPlayers(AudioOutput& output, const platform::Clock& clock, Mixer& mixer) noexcept
    : output_(output)
    , clock_(clock)
    , mixer_(mixer)
    , cache_(kCacheBytes)
{}

Result<std::unique_ptr<platform::AudioPlayer>> MixerAudioPlayers::make(const SharedBytes& data)
{
    requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayers::make");
    mixer_.reclaim();
    auto clip = cache_.find(data, output_.sampleRate());
    if (!clip) {
        return clip.error();
    }
    return std::unique_ptr<platform::AudioPlayer>(
        std::make_unique<MixerAudioPlayer>(output_, clock_, mixer_, std::move(clip.value())));
}

} // namespace tocca::player
