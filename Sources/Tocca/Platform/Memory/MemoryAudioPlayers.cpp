#include "Platform/Memory/MemoryAudioPlayers.h"

#include "Platform/Memory/MemoryFiles.h"

#include "Support/ThreadRole.h"

#include <utility>

namespace tocca::platform::memory {

class MemoryAudioPlayers::Player : public AudioPlayer {
public:
    explicit Player(std::shared_ptr<MemorySound> sound)
        : sound_(std::move(sound))
    {}

    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    ~Player() override { sound_->isReleased = true; }

private:
    std::shared_ptr<MemorySound> sound_;
};

Result<std::unique_ptr<AudioPlayer>> MemoryAudioPlayers::play(const SharedBytes& data,
                                                              const Playback& playback)
{
    requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayers::play");
    if (const auto bad = undecodable_.find(textOf(*data)); bad != undecodable_.end()) {
        return Error{bad->second};
    }
    sounds_.push_back(std::make_shared<MemorySound>(MemorySound{playback, data}));
    return std::unique_ptr<AudioPlayer>(std::make_unique<Player>(sounds_.back()));
}

} // namespace tocca::platform::memory
