#include "UI/Underglow/SpatialUnderglowController.h"

#include "Audio/AudioEngine.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Desktop/Screens.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/Timers.h"
#include "UI/Underglow/Glow.h"
#include "UI/ViewFactory.h"

namespace tocca::ui {

namespace {

constexpr double kHold = 0.06; // seconds until the fade begins

platform::Rect bottomEdge(const platform::Screen& screen) noexcept
{
    constexpr double kHeight = 20;
    return {screen.frame.x, screen.frame.y, screen.frame.width, kHeight};
}

} // namespace

SpatialUnderglowController::SpatialUnderglowController(platform::Host& host, audio::AudioEngine& engine,
                                                       MakeView makeView)
    : host_(host)
    , engine_(engine)
    , makeView_(std::move(makeView))
{
    setupSubscriptions();
}

SpatialUnderglowController::~SpatialUnderglowController() = default;

SpatialUnderglowController& SpatialUnderglowController::shared()
{
    static auto& instance = *new SpatialUnderglowController(
        platform::defaultHost(), audio::AudioEngine::shared(), defaultViews().underglow);
    return instance;
}

void SpatialUnderglowController::setupSubscriptions()
{
    cancellable_ = engine_.keyVisualizerTrigger.subscribe(host_.mainQueue, [this](std::int64_t) {
        if (isEnabled.get()) {
            triggerPulse(engine_.lastActiveKeyPan.get());
        }
    });
}

void SpatialUnderglowController::setup()
{
    const auto screen = host_.screens.main();
    if (window_ || !screen) {
        return;
    }
    window_ = host_.panels.make(bottomEdge(*screen), platform::WindowLevel::floating, makeView_());
    window_->orderFront();
    screenChanges_ = host_.screens.onChange([this] {
        if (const auto changed = host_.screens.main()) {
            window_->setFrame(bottomEdge(*changed));
        }
    });
}

void SpatialUnderglowController::triggerPulse(float pan)
{
    if (!isEnabled.get()) {
        return;
    }
    setup();
    pulseXRatio.set(glowRatio(pan));
    pulseOpacity.set(kGlowPeak);
    fadeTimer_ = host_.timers.scheduleOnce(kHold, [this] { pulseOpacity.set(0); });
}

} // namespace tocca::ui
