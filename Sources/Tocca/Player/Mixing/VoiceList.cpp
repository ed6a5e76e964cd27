#include "Player/Mixing/VoiceList.h"

#include <algorithm>

namespace tocca::player {

std::size_t VoiceList::steadyCount() const noexcept
{
    const auto* const end = voices_.data() + count_;
    return static_cast<std::size_t>(std::count_if(
        voices_.data(), end, [](const ActiveVoice& active) { return !active.voice.isFading(); }));
}

ActiveVoice* VoiceList::oldest(bool isFading) noexcept
{
    auto* const end = voices_.data() + count_;
    auto* const found = std::find_if(voices_.data(), end, [isFading](const ActiveVoice& active) {
        return active.voice.isFading() == isFading;
    });
    return found == end ? nullptr : found;
}

void VoiceList::remove(ActiveVoice* voice) noexcept
{
    std::copy(voice + 1, voices_.data() + count_, voice);
    --count_;
}

} // namespace tocca::player
