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
    const auto mirror = [this](auto& setting, auto field) {
        settingLinks_.push_back(setting.onChange([this, field](const auto& value) {
            latestSettings_.*field = value;
            settings_.store(latestSettings_);
        }));
    };
    mirror(isEnabled, &AudioSettings::isEnabled);
    mirror(currentSwitchType, &AudioSettings::currentSwitchType);
    mirror(volume, &AudioSettings::volume);
    mirror(playUpstroke, &AudioSettings::playUpstroke);
    mirror(isSpatialAudioEnabled, &AudioSettings::isSpatialAudioEnabled);
    mirror(isHapticsEnabled, &AudioSettings::isHapticsEnabled);
    mirror(isBurstDynamicsEnabled, &AudioSettings::isBurstDynamicsEnabled);
    mirror(isPresenceEQEnabled, &AudioSettings::isPresenceEQEnabled);
    mirror(lubeLevel, &AudioSettings::lubeLevel);
    mirror(deskSurface, &AudioSettings::deskSurface);
    mirror(isMouseAudioEnabled, &AudioSettings::isMouseAudioEnabled);
    mirror(isScrollRatchetEnabled, &AudioSettings::isScrollRatchetEnabled);
    mirror(mouseProfile, &AudioSettings::mouseProfile);
    settingLinks_.push_back(selectedCustomPack.onChange([this](const std::optional<SoundPackInfo>& pack) {
        latestSettings_.selectedCustomPack = pack ? &kept(*pack) : nullptr;
        settings_.store(latestSettings_);
    }));
    settingLinks_.push_back(selectedCustomPack.onChange([this](const auto&) { forgetOtherPacks(); }));
    settingLinks_.push_back(currentSwitchType.onChange([this](const auto&) { forgetOtherPacks(); }));
}

void AudioEngine::forgetOtherPacks()
{
    queue_->post([this] {
        const AudioSettings settings = settings_.load();
        loader_.keepOnly(settings.selectedCustomPack != nullptr
                             ? settings.selectedCustomPack->id
                             : std::string(settings.currentSwitchType.rawValue()));
    });
}

const SoundPackInfo& AudioEngine::kept(const SoundPackInfo& pack)
{
    const auto known = std::find(selectedPacks_.begin(), selectedPacks_.end(), pack);
    return known != selectedPacks_.end() ? *known : selectedPacks_.emplace_front(pack);
}

void AudioEngine::playKey(std::uint16_t keyCode, KeyStrokeAction action, std::optional<double> eventTime)
{
    const AudioSettings settings = settings_.load();
    if (!settings.isEnabled || isSmartMuted_() || (action == KeyStrokeAction::up && !settings.playUpstroke)) {
        return;
    }
    const double now = host_.clock.now();
    const double interval = now - lastStrokeTime_.exchange(now, std::memory_order_relaxed);
    const Stroke stroke = shapeStroke(settings, keyCode, action, interval, eventTime);
    if (action == KeyStrokeAction::down && settings.isHapticsEnabled) {
        postFeedback(stroke.playback.pan);
    }
    queue_->post([this, stroke] { runStroke(stroke); });
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

void AudioEngine::runStroke(Stroke stroke)
{
    const SharedBytes data =
        stroke.pack != nullptr
            ? loader_.sample(stroke.pack->folderURL, stroke.pack->id, stroke.category, stroke.action)
            : loader_.sample(stroke.switchType, stroke.category, stroke.action);
    stroke.playback.rate *= drawBetween(host_.random, 0.98F, 1.02F) + stroke.burstPitchOffset;
    start("Failed to play audio sample: ", data, stroke.playback);
}

void AudioEngine::playMouseClick(MouseButton button, std::optional<double> eventTime)
{
    const AudioSettings settings = settings_.load();
    if (!settings.isEnabled || !settings.isMouseAudioEnabled || isSmartMuted_()) {
        return;
    }
    queue_->post([this, profile = settings.mouseProfile, button, eventTime] {
        start("Failed to play mouse click: ",
              peripheralSounds_.mouseClick(PeripheralSounds::clickKey(profile, button)),
              {.rate = drawBetween(host_.random, 0.96F, 1.04F),
               .volume = clampedLevel(settings_.load().volume * kClickLevel),
               .eventTime = eventTime});
    });
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
    queue_->post([this, deltaY, eventTime] {
        start("Failed to play scroll ratchet: ", peripheralSounds_.scrollRatchet(),
              {.rate = scrollSpeedFactor(deltaY) * drawBetween(host_.random, 0.96F, 1.04F),
               .volume = clampedLevel(settings_.load().volume * kRatchetLevel),
               .eventTime = eventTime});
    });
}

void AudioEngine::start(std::string_view failure, const SharedBytes& data, const platform::Playback& playback)
{
    if (!data) {
        return;
    }
    auto player = host_.audioPlayers.play(data, playback);
    if (player) {
        pool_.keep(std::move(player.value()));
    } else if (std::erase_if(reported_, [](const auto& bytes) { return bytes.expired(); });
               reported_.insert(data).second) {
        host_.standardOutput.printLine(std::string(failure) + player.error().describe());
    }
}

} // namespace tocca::audio
