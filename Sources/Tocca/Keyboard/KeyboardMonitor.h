#pragma once

#include "Audio/SoundProfile.h"
#include "Keyboard/Debouncer.h"
#include "Keyboard/TypingSpeed.h"
#include "Platform/EventTap.h"
#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/Subscription.h"

#include <atomic>
#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::platform {
class Thread;
class Timer;
struct Host;
} // namespace tocca::platform

namespace tocca::keyboard {

/// Hears every key, mouse button and wheel of the session, hands them to the audio engine and counts the strokes.
///
/// Events come from a global tap on the thread "com.tocca.keyboardhook"; while there is none, keys typed into the program's
/// own windows take its place. Which keys were typed is not kept: only the last code, for display.
/// Threads: main, but for the event path.
class KeyboardMonitor {
public:
    /// Starts the permission poll and the decay of the typing speed, and capture if it is permitted.
    KeyboardMonitor(platform::Host& host, audio::AudioEngine& engine);
    KeyboardMonitor(const KeyboardMonitor&) = delete;
    KeyboardMonitor& operator=(const KeyboardMonitor&) = delete;
    ~KeyboardMonitor();

    /// The monitor on the default host. Threads: main for the first use.
    [[nodiscard]] static KeyboardMonitor& shared();

    Published<bool> hasAccessibilityPermission{false};
    Published<std::string> lastPressedKey{""}; ///< "Key " and the code of the last accepted press
    Published<std::int64_t> keystrokeCount{0}; ///< accepted presses since launch
    Published<std::optional<std::uint16_t>> activeKeyCode{std::nullopt}; ///< lit for 0.12 s after its press
    Published<std::int64_t> currentWPM{0};                               ///< words per minute

    /// Returns whether the session may be heard, and publishes the answer a moment later.
    bool checkPermission();

    /// Lets the desktop ask the person for the permission.
    void requestPermission();

    /// Asks for the permission and opens the desktop's page for it.
    void openAccessibilitySettings();

    /// Starts capture unless it runs already. Errors: without the permission prints a line and leaves it to the poll.
    void start();

    /// Ends capture and waits for its thread.
    void stop();

private:
    void capture();
    void handleCGEvent(platform::EventType type, const platform::InputEvent& event);
    void handleFlagsChanged(const platform::InputEvent& event);
    void handleLocalEvent(platform::EventType type, const platform::InputEvent& event);
    void press(const platform::InputEvent& event);
    void release(const platform::InputEvent& event);
    void dispatchKeystroke(std::uint16_t keyCode, audio::KeyStrokeAction action, double eventTime);
    void publishPress(std::uint16_t keyCode, std::int64_t wpm);
    void startWPMDecayTimer();

    platform::Host& host_;
    audio::AudioEngine& engine_;

    std::atomic<platform::EventTap*> eventTap_{nullptr};     // capture -> main
    std::unique_ptr<platform::EventTap> ownedTap_;           // capture; main once the thread has stopped
    std::unique_ptr<platform::RunLoopSource> runLoopSource_; // as ownedTap_
    std::unique_ptr<platform::Thread> tapThread_;
    Subscription localMonitor_;
    std::uint64_t lastModifierFlags_ = 0; // delivering thread
    bool isMonitoring_ = false;
    std::unique_ptr<platform::Timer> permissionPollingTimer_;
    Debouncer debouncer_;                // delivering thread
    std::bitset<65536> pressedKeyCodes_; // delivering thread
    TypingSpeed typingSpeed_;            // delivering thread -> main
    std::unique_ptr<platform::Timer> wpmDecayTimer_;
    Lifetime lifetime_;
};

} // namespace tocca::keyboard
