#include "UI/NotchHUD/NotchAcousticHUDController.h"

#include "Audio/AudioEngine.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Desktop/Screens.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/Random.h"
#include "Platform/Timers.h"
#include "Platform/UserDefaults.h"
#include "UI/ViewFactory.h"

#include <cmath>

namespace tocca::ui {

namespace {

constexpr const char* kEnabledKey = "NotchHUD_Enabled";
constexpr double kStay = 1.6;               // seconds after the last stroke
constexpr double kLeave = 0.45;             // seconds for the content to spring shut
constexpr platform::Size kContent{340, 44}; // until the panel is put under the screen's top
constexpr platform::Size kPanel{320, 46};
constexpr double kHousingOverlap = 8; // points that the panel reaches into a camera housing
constexpr double kMenuBar = 28;       // height assumed where there is no housing
constexpr double kGapBelowMenuBar = 4;

/// Uniform in the closed range, with all the 53 bits that a double holds.
double drawEnergy(platform::Random& random)
{
    constexpr double kQuietest = 0.65;
    constexpr double kLoudest = 1.0;
    constexpr auto kTop = static_cast<double>((std::uint64_t{1} << 53U) - 1);
    return std::lerp(kQuietest, kLoudest, static_cast<double>(random.next() >> 11U) / kTop);
}

} // namespace

NotchAcousticHUDController::NotchAcousticHUDController(platform::Host& host, audio::AudioEngine& engine,
                                                       keyboard::KeyboardMonitor& monitor, MakeView makeView)
    : host_(host)
    , engine_(engine)
    , monitor_(monitor)
    , makeView_(std::move(makeView))
    , enabledLink_(isEnabled.onChange([this](bool enabled) { applyEnabled(enabled); }))
{
    isEnabled.set(false);
    setupSubscriptions();
}

NotchAcousticHUDController::~NotchAcousticHUDController() = default;

NotchAcousticHUDController& NotchAcousticHUDController::shared()
{
    static auto& instance =
        *new NotchAcousticHUDController(platform::defaultHost(), audio::AudioEngine::shared(),
                                        keyboard::KeyboardMonitor::shared(), defaultViews().notchHUD);
    return instance;
}

void NotchAcousticHUDController::applyEnabled(bool enabled)
{
    host_.userDefaults.setBool(kEnabledKey, enabled);
    if (!enabled) {
        if (panel_) {
            panel_->orderOut();
        }
        isExpanded.set(false);
    }
}

void NotchAcousticHUDController::setupSubscriptions()
{
    const auto switchTypeName = [this] { return std::string(engine_.currentSwitchType.get().rawValue()); };

    cancellables_.push_back(engine_.keyVisualizerTrigger.subscribe(host_.mainQueue, [this](std::int64_t) {
        if (isEnabled.get()) {
            triggerPulse();
        }
    }));
    cancellables_.push_back(
        engine_.currentSwitchType.subscribe(host_.mainQueue, [this](audio::SwitchType switchType) {
            switchName.set(std::string(switchType.rawValue()));
        }));
    // After the switch, so that a pack that is selected from the start gives its name last.
    cancellables_.push_back(engine_.selectedCustomPack.subscribe(
        host_.mainQueue, [this, switchTypeName](const std::optional<audio::SoundPackInfo>& pack) {
            switchName.set(pack ? pack->name : switchTypeName());
        }));
    cancellables_.push_back(monitor_.currentWPM.subscribe(
        host_.mainQueue, [this](std::int64_t wordsPerMinute) { currentWPM.set(wordsPerMinute); }));
}

void NotchAcousticHUDController::setup()
{
    if (panel_) {
        return;
    }
    panel_ = host_.panels.make({0, 0, kContent.width, kContent.height}, platform::WindowLevel::statusBar,
                               makeView_());
    reposition();
    if (!isEnabled.get()) {
        panel_->orderOut();
    }
    screenChanges_ = host_.screens.onChange([this] { reposition(); });
}

void NotchAcousticHUDController::reposition()
{
    const auto screen = host_.screens.main();
    if (!screen || !panel_) {
        return;
    }
    const bool hasHousing = screen->safeAreaTop > 0;
    const double band = hasHousing ? screen->safeAreaTop : kMenuBar;
    const double lift = hasHousing ? kHousingOverlap : -kGapBelowMenuBar;
    panel_->setFrame({screen->frame.midX() - kPanel.width / 2,
                      screen->frame.maxY() - band - kPanel.height + lift, kPanel.width, kPanel.height});
}

void NotchAcousticHUDController::triggerPulse()
{
    if (!isEnabled.get()) {
        return;
    }
    setup();
    if (!panel_->isVisible()) {
        panel_->orderFront();
    }
    isExpanded.set(true);
    currentEnergy.set(drawEnergy(host_.random));
    idleTimer_ = host_.timers.scheduleOnce(kStay, [this] { collapse(); });
}

void NotchAcousticHUDController::collapse()
{
    isExpanded.set(false);
    currentEnergy.set(0);
    host_.mainQueue.postAfter(kLeave, lifetime_.guard([this] {
        if (!isExpanded.get()) {
            panel_->orderOut();
        }
    }));
}

} // namespace tocca::ui
