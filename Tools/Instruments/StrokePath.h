#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Host.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"
#include "Platform/Memory/MemoryHost.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include <poll.h>

namespace tocca::instruments {

/// Players that cost nothing, so that what is left is the road to them.
class SilentPlayers final : public platform::AudioPlayers {
public:
    [[nodiscard]] Result<std::unique_ptr<platform::AudioPlayer>> play(const SharedBytes&,
                                                                      const platform::Playback&) override
    {
        ++played_;
        return std::make_unique<platform::AudioPlayer>();
    }

    [[nodiscard]] std::uint64_t played() const noexcept { return played_.load(); }

private:
    std::atomic<std::uint64_t> played_{0};
};

/// A tap whose events the caller delivers, on a thread that plays the capture thread.
class HandDeliveredTaps final : public platform::EventTaps {
public:
    [[nodiscard]] std::unique_ptr<platform::EventTap> create(platform::EventMask,
                                                             platform::EventHandler handler) override
    {
        handler_ = std::move(handler);
        return std::make_unique<Tap>();
    }

    void deliver(platform::EventType type, const platform::InputEvent& event) { handler_(type, event); }

private:
    class Tap final : public platform::EventTap {
    public:
        [[nodiscard]] std::unique_ptr<platform::RunLoopSource> attachToCurrentThread() override
        {
            return nullptr;
        }

        void setEnabled(bool) override {}
    };

    platform::EventHandler handler_;
};

/// Monitor and engine on the real queues, between a tap delivered by hand and players that do nothing.
///
/// Threads: made, served and destroyed on one thread, which plays the main one; `strike` on any other.
class StrokePath {
public:
    StrokePath()
    {
        memory_.settle(); // lets the capture thread's body make its tap
    }

    /// Delivers a press and its release. Threads: one that plays the capture thread.
    void strike(std::uint16_t keyCode)
    {
        const platform::InputEvent event{.keyCode = keyCode, .time = clock_.now()};
        taps_.deliver(platform::EventType::KeyDown, event);
        taps_.deliver(platform::EventType::KeyUp, event);
    }

    /// Waits for tasks of the main queue for up to `milliseconds` and runs them. Threads: main.
    void serveMain(int milliseconds)
    {
        pollfd polled{.fd = mainQueue_.fd(), .events = POLLIN, .revents = 0};
        if (::poll(&polled, 1, milliseconds) > 0) {
            mainQueue_.runReady();
        }
    }

    [[nodiscard]] keyboard::KeyboardMonitor& monitor() noexcept { return monitor_; }

    [[nodiscard]] const SilentPlayers& players() const noexcept { return players_; }

private:
    /// Its disk is not written to any more once the engine has begun to read from it on its own thread.
    struct Machine : platform::memory::MemoryHost {
        Machine() { files().write("/app/resources/SoundPacks/holy-panda/press.wav", "press"); }
    };

    Machine memory_;
    platform::linux::LinuxTimers timers_;
    platform::linux::LinuxMainQueue mainQueue_{timers_};
    platform::linux::LinuxSerialQueues serialQueues_;
    platform::linux::LinuxClock clock_;
    HandDeliveredTaps taps_;
    SilentPlayers players_;
    platform::Host host_{mainQueue_,
                         serialQueues_,
                         memory_.threads(),
                         memory_.timers(),
                         clock_,
                         taps_,
                         memory_.localMonitors(),
                         memory_.trustQuery(),
                         players_,
                         memory_.audioDevices(),
                         memory_.haptics(),
                         memory_.workspace(),
                         memory_.loginItem(),
                         memory_.directories(),
                         memory_.files(),
                         memory_.fileStore(),
                         memory_.archives(),
                         memory_.soundDecoder(),
                         memory_.random(),
                         memory_.standardOutput(),
                         memory_.application(),
                         memory_.screens(),
                         memory_.windows(),
                         memory_.panels(),
                         memory_.popovers(),
                         memory_.statusBar(),
                         memory_.mainMenu(),
                         memory_.openPanels(),
                         memory_.userDefaults()};
    audio::SoundPackLoader loader_{host_};
    audio::AudioEngine engine_{host_, loader_, [] { return false; }};
    keyboard::KeyboardMonitor monitor_{host_, engine_};
};

} // namespace tocca::instruments
