#include "Audio/AudioEngine.h"

#include "App/SmartMuteManager.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Audio/RandomDraws.h"
#include "Platform/Clock.h"
#include "Platform/Haptics.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/StandardOutput.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace tocca::audio {

namespace {

constexpr double kScrollPause = 0.035; // seconds between two ticks
constexpr float kClickLevel = 0.85F;
constexpr float kRatchetLevel = 0.45F;

float scrollSpeedFactor(double deltaY) noexcept
{
    const float factor = 1.0F + std::abs(static_cast<float>(deltaY)) * 0.02F;
    return factor >= 0.85F ? std::min(factor, 1.3F)
                           : 0.85F; // the comparison also sends what is not a number to 0.85
}

} // namespace

/// A key stroke on its way to the audio queue.
struct AudioEngine::KeySound {
    KeyCategory category;
    KeyStrokeAction action;
    SwitchType switchType;
    const SoundPackInfo* pack;
    StrokeShape shape;
    std::optional<double> eventTime;
};

/// How a recording is to be played.
struct AudioEngine::Playback {
    float rate;
    float volume;
    std::optional<float> pan;
    std::optional<double> eventTime;
    std::string_view failure; ///< what the diagnostic line begins with
};

AudioEngine::AudioEngine(platform::Host& host, SoundPackLoader& loader, MuteQuery isSmartMuted)
    : host_(host)
    , loader_(loader)
    , isSmartMuted_(std::move(isSmartMuted))
    , queue_(host.serialQueues.make(
          {.label = "com.tocca.audioengine", .role = ThreadRole::AudioQueue, .isUserInteractive = true}))
{
    mirrorSettings();
    warmUp();
    precomputePeripheralAudio();
}

AudioEngine& AudioEngine::shared()
{
    // The capture thread may ask before the main thread has come to make the manager.
    static auto& instance = *new AudioEngine(platform::defaultHost(), SoundPackLoader::shared(),
                                             &app::SmartMuteManager::isSharedMutedNow);
    return instance;
}

void AudioEngine::warmUp()
{
    queue_->post([this] {
        const AudioSettings settings = settings_.load();
        if (settings.selectedCustomPack != nullptr) {
            loader_.loadPack(settings.selectedCustomPack->id, settings.selectedCustomPack->folderURL);
        } else if (const auto directory = loader_.builtInSoundPacksDirectory()) {
            const SwitchType type = settings.currentSwitchType;
            loader_.loadPack(std::string(type.rawValue()), *directory / type.folderName());
        }
    });
}

void AudioEngine::precomputePeripheralAudio()
{
    queue_->post([this] { peripheralSounds_.precompute(); });
}

void AudioEngine::mirrorSettings()
{
    const auto mirror = [this](auto& setting) {
        settingLinks_.push_back(setting.onChange([this](const auto&) { refreshSettings(); }));
    };
    settingLinks_.push_back(selectedCustomPack.onChange([this](const std::optional<SoundPackInfo>& pack) {
        const auto isSame = [&pack](const SoundPackInfo& known) { return known == *pack; };
        if (pack && std::none_of(selectedPacks_.begin(), selectedPacks_.end(), isSame)) {
            selectedPacks_.push_front(*pack);
        }
        refreshSettings();
    }));
    mirror(isEnabled);
    mirror(currentSwitchType);
    mirror(volume);
    mirror(playUpstroke);
    mirror(isSpatialAudioEnabled);
    mirror(isHapticsEnabled);
    mirror(isBurstDynamicsEnabled);
    mirror(isPresenceEQEnabled);
    mirror(lubeLevel);
    mirror(deskSurface);
    mirror(isMouseAudioEnabled);
    mirror(isScrollRatchetEnabled);
    mirror(mouseProfile);
}

void AudioEngine::refreshSettings()
{
    const auto& pack = selectedCustomPack.get();
    const auto kept = std::find_if(selectedPacks_.begin(), selectedPacks_.end(),
                                   [&pack](const SoundPackInfo& known) { return pack && known == *pack; });
    settings_.store({
        .isEnabled = isEnabled.get(),
        .playUpstroke = playUpstroke.get(),
        .isSpatialAudioEnabled = isSpatialAudioEnabled.get(),
        .isHapticsEnabled = isHapticsEnabled.get(),
        .isBurstDynamicsEnabled = isBurstDynamicsEnabled.get(),
        .isPresenceEQEnabled = isPresenceEQEnabled.get(),
        .isMouseAudioEnabled = isMouseAudioEnabled.get(),
        .isScrollRatchetEnabled = isScrollRatchetEnabled.get(),
        .currentSwitchType = currentSwitchType.get(),
        .deskSurface = deskSurface.get(),
        .mouseProfile = mouseProfile.get(),
        .volume = volume.get(),
        .lubeLevel = lubeLevel.get(),
        .selectedCustomPack = kept == selectedPacks_.end() ? nullptr : &*kept,
    });
}

void AudioEngine::playKey(std::uint16_t keyCode, KeyStrokeAction action, std::optional<double> eventTime)
{
    const AudioSettings settings = settings_.load();
    if (!settings.isEnabled || isSmartMuted_() || (action == KeyStrokeAction::up && !settings.playUpstroke)) {
        return;
    }
    const double now = host_.clock.now();
    const double interval = now - lastStrokeTime_.exchange(now, std::memory_order_relaxed);
    const StrokeShape shape = shapeStroke(settings, keyCode, interval);
    if (action == KeyStrokeAction::down && settings.isHapticsEnabled) {
        postFeedback(shape.pan);
    }
    queue_->post([this, sound = KeySound{.category = KeyCategory::from(keyCode),
                                         .action = action,
                                         .switchType = settings.currentSwitchType,
                                         .pack = settings.selectedCustomPack,
                                         .shape = shape,
                                         .eventTime = eventTime}] { runKeySound(sound); });
}

void AudioEngine::postFeedback(float pan)
{
    host_.mainQueue.postRealtime(lifetime_.guard([this, pan] {
        host_.haptics.performAlignment();
        lastActiveKeyPan.set(pan);
        const auto count = static_cast<std::uint64_t>(keyVisualizerTrigger.get());
        keyVisualizerTrigger.set(static_cast<std::int64_t>(count + 1));
    }));
}

void AudioEngine::runKeySound(const KeySound& sound)
{
    const SharedBytes data =
        sound.pack != nullptr
            ? loader_.sample(sound.pack->folderURL, sound.pack->id, sound.category, sound.action)
            : loader_.sample(sound.switchType, sound.category, sound.action);
    if (!data) {
        return;
    }
    const StrokeShape& shape = sound.shape;
    start(data, {.rate = (drawBetween(host_.random, 0.98F, 1.02F) + shape.burstPitchOffset) * shape.deskRate *
                         shape.lubeFactor,
                 .volume = shape.gain,
                 .pan = shape.pan,
                 .eventTime = sound.eventTime,
                 .failure = "Failed to play audio sample: "});
}

void AudioEngine::playMouseClick(MouseButton button, std::optional<double> eventTime)
{
    const AudioSettings settings = settings_.load();
    if (!settings.isEnabled || !settings.isMouseAudioEnabled || isSmartMuted_()) {
        return;
    }
    queue_->post([this, profile = settings.mouseProfile, button, eventTime] {
        runMouseClick(profile, button, eventTime);
    });
}

void AudioEngine::runMouseClick(MouseSwitchProfile profile, MouseButton button,
                                std::optional<double> eventTime)
{
    const SharedBytes data = peripheralSounds_.mouseClick(PeripheralSounds::clickKey(profile, button));
    if (!data) {
        return;
    }
    start(data, {.rate = drawBetween(host_.random, 0.96F, 1.04F),
                 .volume = clampedLevel(settings_.load().volume * kClickLevel),
                 .pan = std::nullopt,
                 .eventTime = eventTime,
                 .failure = "Failed to play mouse click: "});
}

void AudioEngine::playScrollRatchet(double deltaY, std::optional<double> eventTime)
{
    const AudioSettings settings = settings_.load();
    if (!settings.isEnabled || !settings.isScrollRatchetEnabled || isSmartMuted_()) {
        return;
    }
    const double now = host_.clock.now();
    if (now - lastScrollTime_ < kScrollPause) {
        return;
    }
    lastScrollTime_ = now;
    queue_->post([this, deltaY, eventTime] { runScrollRatchet(deltaY, eventTime); });
}

void AudioEngine::runScrollRatchet(double deltaY, std::optional<double> eventTime)
{
    const SharedBytes& data = peripheralSounds_.scrollRatchet();
    if (!data) {
        return;
    }
    start(data, {.rate = scrollSpeedFactor(deltaY) * drawBetween(host_.random, 0.96F, 1.04F),
                 .volume = clampedLevel(settings_.load().volume * kRatchetLevel),
                 .pan = std::nullopt,
                 .eventTime = eventTime,
                 .failure = "Failed to play scroll ratchet: "});
}

void AudioEngine::start(const SharedBytes& data, const Playback& playback)
{
    auto made = host_.audioPlayers.make(data);
    if (!made) {
        host_.standardOutput.printLine(std::string(playback.failure) + made.error().describe());
        return;
    }
    platform::AudioPlayer& player = *made.value();
    player.setEnableRate(true);
    player.setRate(playback.rate);
    player.setVolume(playback.volume);
    if (playback.pan) {
        player.setPan(*playback.pan);
    }
    player.prepareToPlay();
    player.play(playback.eventTime);
    pool_.keep(std::move(made.value()));
}

} // namespace tocca::audio
