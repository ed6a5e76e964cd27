#include "Keyboard/KeyboardMonitor.h"

#include "Audio/AudioEngine.h"
#include "Platform/Clock.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Host.h"
#include "Platform/LocalMonitor.h"
#include "Platform/MainQueue.h"
#include "Platform/StandardOutput.h"
#include "Platform/Threads.h"
#include "Platform/Timers.h"
#include "Platform/TrustQuery.h"

#include <string>

namespace tocca::keyboard {

using audio::KeyStrokeAction;
using audio::MouseButton;
using platform::EventType;
using platform::InputEvent;
using platform::maskOf;

namespace {

constexpr double kPermissionPoll = 1.5; // seconds
constexpr double kSpeedDecay = 0.8;     // seconds
constexpr double kHighlight = 0.12;     // seconds

constexpr std::uint64_t kModifierMask = platform::flag::kAlphaShift | platform::flag::kShift |
                                        platform::flag::kControl | platform::flag::kOption |
                                        platform::flag::kCommand;

constexpr platform::EventMask kKeyMask =
    maskOf(EventType::KeyDown) | maskOf(EventType::KeyUp) | maskOf(EventType::FlagsChanged);

constexpr platform::EventMask kTapMask = kKeyMask | maskOf(EventType::LeftMouseDown) |
                                         maskOf(EventType::RightMouseDown) | maskOf(EventType::ScrollWheel) |
                                         maskOf(EventType::OtherMouseDown);

static_assert(kTapMask == 0x2401C0A && kKeyMask == 0x1C00 && kModifierMask == 0x1F0000);

} // namespace

KeyboardMonitor::KeyboardMonitor(platform::Host& host, audio::AudioEngine& engine)
    : host_(host)
    , engine_(engine)
{
    checkPermission();
    permissionPollingTimer_ = host_.timers.scheduleRepeating(kPermissionPoll, [this] {
        if (checkPermission() && !isMonitoring_) {
            start();
        }
    });
    startWPMDecayTimer();
    start();
}

KeyboardMonitor::~KeyboardMonitor()
{
    stop();
}

KeyboardMonitor& KeyboardMonitor::shared()
{
    static auto& instance = *new KeyboardMonitor(platform::defaultHost(), audio::AudioEngine::shared());
    return instance;
}

bool KeyboardMonitor::checkPermission()
{
    const bool isTrusted = host_.trustQuery.isTrusted();
    host_.mainQueue.post(lifetime_.guard([this, isTrusted] { hasAccessibilityPermission.set(isTrusted); }));
    return isTrusted;
}

void KeyboardMonitor::requestPermission()
{
    host_.trustQuery.promptForTrust();
    checkPermission();
}

void KeyboardMonitor::openAccessibilitySettings()
{
    requestPermission();
    host_.workspace.openUrl("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
}

void KeyboardMonitor::start()
{
    requireThreadRole({ThreadRole::Main}, "KeyboardMonitor::start");
    if (isMonitoring_) {
        return;
    }
    if (!checkPermission()) {
        host_.standardOutput.printLine("Cannot start: Accessibility permission not granted yet.");
        return;
    }
    tapThread_ = host_.threads.start(
        {.name = "com.tocca.keyboardhook", .role = ThreadRole::Capture, .isUserInteractive = true},
        [this] { capture(); });
    localMonitor_ = host_.localMonitors.add(
        kKeyMask, [this](EventType type, const InputEvent& event) { handleLocalEvent(type, event); });
    isMonitoring_ = true;
}

void KeyboardMonitor::capture()
{
    auto tap = host_.eventTaps.create(
        kTapMask, [this](EventType type, const InputEvent& event) { handleCGEvent(type, event); });
    if (!tap) {
        host_.standardOutput.printLine("❌ Failed to create CGEventTap on dedicated thread");
        return;
    }
    ownedTap_ = std::move(tap);
    eventTap_.store(ownedTap_.get(), std::memory_order_release);
    runLoopSource_ = ownedTap_->attachToCurrentThread();
    ownedTap_->setEnabled(true);
    host_.standardOutput.printLine(
        "✅ Global dedicated keyboard & peripheral tap thread running permanently!");
}

void KeyboardMonitor::stop()
{
    requireThreadRole({ThreadRole::Main}, "KeyboardMonitor::stop");
    if (auto* tap = eventTap_.load(std::memory_order_acquire)) {
        tap->setEnabled(false);
    }
    if (tapThread_) {
        tapThread_->stop(); // also waits for a tap that is just being made
    }
    runLoopSource_.reset();
    eventTap_.store(nullptr, std::memory_order_release);
    ownedTap_.reset();
    localMonitor_.reset();
    pressedKeyCodes_.reset();
    isMonitoring_ = false;
}

void KeyboardMonitor::handleCGEvent(EventType type, const InputEvent& event)
{
    switch (type) {
    case EventType::LeftMouseDown:
        engine_.playMouseClick(MouseButton::left, event.time);
        break;
    case EventType::RightMouseDown:
        engine_.playMouseClick(MouseButton::right, event.time);
        break;
    case EventType::OtherMouseDown:
        engine_.playMouseClick(MouseButton::other, event.time);
        break;
    case EventType::KeyDown:
        press(event);
        break;
    case EventType::KeyUp:
        release(event);
        break;
    case EventType::FlagsChanged:
        handleFlagsChanged(event);
        break;
    case EventType::ScrollWheel:
        engine_.playScrollRatchet(event.scrollDeltaY, event.time);
        break;
    case EventType::TapDisabledByTimeout:
    case EventType::TapDisabledByUserInput:
        if (auto* tap = eventTap_.load(std::memory_order_acquire)) {
            tap->setEnabled(true);
        }
        break;
    }
}

void KeyboardMonitor::handleFlagsChanged(const InputEvent& event)
{
    const std::uint64_t now = event.flags & kModifierMask;
    const std::uint64_t before = lastModifierFlags_ & kModifierMask;
    lastModifierFlags_ = event.flags;
    if (now != before) {
        dispatchKeystroke(event.keyCode, now > before ? KeyStrokeAction::down : KeyStrokeAction::up,
                          event.time);
    }
}

void KeyboardMonitor::handleLocalEvent(EventType type, const InputEvent& event)
{
    if (eventTap_.load(std::memory_order_acquire) != nullptr) {
        return;
    }
    if (type == EventType::KeyDown) {
        press(event);
    } else if (type == EventType::KeyUp) {
        release(event);
    }
}

void KeyboardMonitor::press(const InputEvent& event)
{
    if (event.isAutorepeat || pressedKeyCodes_.test(event.keyCode)) {
        return;
    }
    pressedKeyCodes_.set(event.keyCode);
    dispatchKeystroke(event.keyCode, KeyStrokeAction::down, event.time);
}

void KeyboardMonitor::release(const InputEvent& event)
{
    pressedKeyCodes_.reset(event.keyCode);
    dispatchKeystroke(event.keyCode, KeyStrokeAction::up, event.time);
}

void KeyboardMonitor::dispatchKeystroke(std::uint16_t keyCode, KeyStrokeAction action, double eventTime)
{
    const double now = host_.clock.now();
    if (!debouncer_.accept(keyCode, action, now)) {
        return;
    }
    engine_.playKey(keyCode, action, eventTime);
    if (action == KeyStrokeAction::up) {
        return;
    }
    typingSpeed_.add(now);
    const std::int64_t wpm = typingSpeed_.wordsPerMinute();
    host_.mainQueue.postRealtime(lifetime_.guard([this, keyCode, wpm] { publishPress(keyCode, wpm); }));
}

void KeyboardMonitor::publishPress(std::uint16_t keyCode, std::int64_t wpm)
{
    keystrokeCount.set(keystrokeCount.get() + 1);
    currentWPM.set(wpm);
    lastPressedKey.set("Key " + std::to_string(keyCode));
    activeKeyCode.set(keyCode);
    host_.mainQueue.postAfter(kHighlight, lifetime_.guard([this, keyCode] {
        if (activeKeyCode.get() == keyCode) {
            activeKeyCode.set(std::nullopt);
        }
    }));
}

void KeyboardMonitor::startWPMDecayTimer()
{
    wpmDecayTimer_ = host_.timers.scheduleRepeating(kSpeedDecay, [this] {
        typingSpeed_.prune(host_.clock.now());
        const std::int64_t wpm = typingSpeed_.wordsPerMinute();
        if (wpm != currentWPM.get()) {
            host_.mainQueue.post(lifetime_.guard([this, wpm] { currentWPM.set(wpm); }));
        }
    });
}

} // namespace tocca::keyboard
