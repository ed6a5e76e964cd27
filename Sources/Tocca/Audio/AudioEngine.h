#pragma once

#include "Audio/AudioSettings.h"
#include "Audio/PeripheralSynthesis.h"
#include "Audio/PlayerPool.h"
#include "Audio/StrokeShaping.h"
#include "Platform/SerialQueue.h"
#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/SnapshotCell.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace tocca::platform {
struct Host;
}

namespace tocca::audio {

class SoundPackLoader;

/// Turns strokes, clicks and scrolling into sound.
///
/// The published settings start at the values given here at every launch and are kept nowhere. Playback reads them afresh
/// for every event, as one consistent set; assigning one does nothing else, but that packs which are no longer selected leave the memory.
/// Threads: published members: main. `playKey`, `playMouseClick`, `playScrollRatchet`: any one thread that delivers input,
/// and main.
class AudioEngine {
public:
    /// Whether all sound is to be suppressed right now. Threads: any. Real-time: wait-free.
    using MuteQuery = std::function<bool()>;

    /// Queues the preload of the selected pack and the synthesis of clicks and tick before anything else can be played.
    AudioEngine(platform::Host& host, SoundPackLoader& loader, MuteQuery isSmartMuted);
    AudioEngine(const AudioEngine&) = delete;
    AudioEngine& operator=(const AudioEngine&) = delete;

    /// The engine on the default host. Threads: main for the first use.
    [[nodiscard]] static AudioEngine& shared();

    Published<bool> isEnabled{true};
    Published<SwitchType> currentSwitchType{
        SwitchType::holyPanda}; ///< used while `selectedCustomPack` is empty
    Published<std::optional<SoundPackInfo>> selectedCustomPack{std::nullopt};
    Published<float> volume{1.0F}; ///< linear, limited to 0…1 where it is used
    Published<bool> playUpstroke{false};
    Published<bool> isSpatialAudioEnabled{true};
    Published<bool> isHapticsEnabled{true};
    Published<bool> isBurstDynamicsEnabled{true};
    Published<bool> isPresenceEQEnabled{true};
    Published<float> lubeLevel{0.0F}; ///< 0…1; lowers the rate of key sounds by up to 5 %
    Published<AcousticDeskSurface> deskSurface{AcousticDeskSurface::feltDeskmat};
    Published<bool> isMouseAudioEnabled{true};
    Published<bool> isScrollRatchetEnabled{true};
    Published<MouseSwitchProfile> mouseProfile{MouseSwitchProfile::kailhGM8};
    Published<float> lastActiveKeyPan{0.0F};         ///< pan of the latest press that gave a haptic pulse
    Published<std::int64_t> keyVisualizerTrigger{0}; ///< counts presses that gave a haptic pulse; wraps

    /// Sounds a key stroke. `eventTime` is when it happened on the platform's clock (now when absent).
    /// Real-time: never allocates, locks or waits.
    void playKey(std::uint16_t keyCode, KeyStrokeAction action,
                 std::optional<double> eventTime = std::nullopt);

    /// Sounds a mouse button's press. Real-time: as `playKey`.
    void playMouseClick(MouseButton button, std::optional<double> eventTime = std::nullopt);

    /// Sounds a tick of the wheel unless the last one is less than 35 ms old. Threads: the one that delivers input.
    /// Units: `deltaY` in lines. Real-time: as `playKey`.
    void playScrollRatchet(double deltaY, std::optional<double> eventTime = std::nullopt);

    /// Queues the reading of the selected pack into memory; construction has done so once.
    void warmUp();

private:
    void precomputePeripheralAudio();
    void mirrorSettings();
    void forgetOtherPacks();
    [[nodiscard]] const SoundPackInfo& kept(const SoundPackInfo& pack);
    void postFeedback(float pan);
    void runStroke(Stroke stroke);
    void start(std::string_view failure, const SharedBytes& data, const platform::Playback& playback);

    platform::Host& host_;
    SoundPackLoader& loader_;
    const MuteQuery isSmartMuted_;
    std::vector<Subscription> settingLinks_;
    std::forward_list<SoundPackInfo>
        selectedPacks_;            // main; every pack ever selected, so that readers' pointers stay good
    AudioSettings latestSettings_; // main
    SnapshotCell<AudioSettings> settings_{latestSettings_}; // main -> any
    PlayerPool pool_;                                       // audio queue
    std::atomic<double> lastStrokeTime_{0.0};               // callers of playKey
    std::set<std::weak_ptr<const std::vector<std::byte>>, std::owner_less<>>
        reported_;                      // audio queue; what could not be played
    double lastScrollTime_ = 0.0;       // caller of playScrollRatchet
    PeripheralSounds peripheralSounds_; // audio queue
    Lifetime lifetime_;
    std::unique_ptr<platform::SerialQueue> queue_; // last: its tasks use the members above
};

} // namespace tocca::audio
