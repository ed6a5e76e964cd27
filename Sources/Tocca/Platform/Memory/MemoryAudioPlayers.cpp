#include "Platform/Memory/MemoryAudioPlayers.h"

#include "Platform/Memory/MemoryFiles.h"

#include "Support/ThreadRole.h"

#include <utility>

namespace tocca::platform::memory {

class MemoryAudioPlayers::Player : public AudioPlayer {
public:
    Player(std::shared_ptr<MemorySound> sound, VirtualTime& time)
        : sound_(std::move(sound))
        , time_(time)
    {}

    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    ~Player() override { sound_->isReleased = true; }

    void setEnableRate(bool isEnabled) override
    {
        isRateEnabled_ = isEnabled;
        applyRate();
    }

    void setRate(float rate) override
    {
        rate_ = rate;
        applyRate();
    }

    void setVolume(float volume) override { sound_->volume = volume; }

    void setPan(float pan) override { sound_->pan = pan; }

    void prepareToPlay() override { sound_->wasPrepared = true; }

    void play(std::optional<double> eventTime) override
    {
        requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayer::play");
        sound_->startedAt = time_.now();
        sound_->eventTime = eventTime;
    }

private:
    void applyRate() { sound_->rate = isRateEnabled_ ? rate_ : 1.0F; }

    std::shared_ptr<MemorySound> sound_;
    VirtualTime& time_;
    bool isRateEnabled_ = false;
    float rate_ = 1.0F;
};

Result<std::unique_ptr<AudioPlayer>> MemoryAudioPlayers::make(const SharedBytes& data)
{
    requireThreadRole({ThreadRole::AudioQueue}, "AudioPlayers::make");
    if (const auto bad = undecodable_.find(textOf(*data)); bad != undecodable_.end()) {
        return Error{bad->second};
    }
    sounds_.push_back(std::make_shared<MemorySound>(MemorySound{.data = data}));
    return std::unique_ptr<AudioPlayer>(std::make_unique<Player>(sounds_.back(), time_));
}

} // namespace tocca::platform::memory
