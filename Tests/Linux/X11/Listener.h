#pragma once

#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/Threads/LinuxThreads.h"
#include "Platform/Linux/X11/Input/XInputEventTaps.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::linux {

/// A capture thread with a tap that writes down what it hears.
class Listener {
public:
    struct Heard {
        EventType type;
        InputEvent event;
        double arrival;
    };

    static constexpr EventMask kEverything = 0x2401C0A;

    explicit Listener(EventMask mask = kEverything, KeyGate gate = {})
        : taps_(std::move(gate))
    {
        thread_ = threads_.start({.name = "listener", .role = ThreadRole::Capture}, [this, mask] {
            tap_ = taps_.create(mask, [this](EventType type, const InputEvent& event) { hear(type, event); });
            if (tap_) {
                source_ = tap_->attachToCurrentThread();
                tap_->setEnabled(true);
            }
            isReady_ = true;
            isReady_.notify_all();
        });
        isReady_.wait(false);
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    ~Listener() { source_.reset(); }

    EventTap& tap() { return *tap_; }

    void detach() { source_.reset(); }

    /// Waits until something was heard of which `textOf` gives `text`, and returns everything heard since the last call.
    std::string until(const std::string& text)
    {
        constexpr std::chrono::seconds kDeadline{20};
        std::unique_lock lock(mutex_);
        const auto hasCome = [&] {
            for (const Heard& heard : heard_) {
                if (textOf(heard) == text) {
                    return true;
                }
            }
            return false;
        };
        const bool isInTime = changed_.wait_for(lock, kDeadline, hasCome);
        std::string all = isInTime ? "" : "(never " + text + ") ";
        for (const Heard& heard : heard_) {
            all += textOf(heard) + ' ';
        }
        last_ = std::move(heard_);
        heard_.clear();
        return all;
    }

    /// What the last `until` returned as text.
    [[nodiscard]] const std::vector<Heard>& last() const { return last_; }

    /// How much was heard since the last `until`.
    [[nodiscard]] std::size_t count()
    {
        const std::lock_guard lock(mutex_);
        return heard_.size();
    }

    /// "d0:flags" for a press, "u0:flags" a release, "f56:flags" changed flags, "l", "r" and "o" for the buttons, "w1" for the
    /// wheel, "lost" for a lost server.
    static std::string textOf(const Heard& heard)
    {
        std::array<char, 64> text{};
        const InputEvent& event = heard.event;
        const auto key = [&](char kind) {
            std::snprintf(text.data(), text.size(), "%c%d:%lx", kind, event.keyCode, event.flags);
        };
        switch (heard.type) {
        case EventType::KeyDown:
            key(event.isAutorepeat ? 'a' : 'd');
            break;
        case EventType::KeyUp:
            key('u');
            break;
        case EventType::FlagsChanged:
            key('f');
            break;
        case EventType::LeftMouseDown:
            return "l";
        case EventType::RightMouseDown:
            return "r";
        case EventType::OtherMouseDown:
            return "o";
        case EventType::ScrollWheel:
            std::snprintf(text.data(), text.size(), "w%g", event.scrollDeltaY);
            break;
        case EventType::TapDisabledByTimeout:
            return "lost";
        case EventType::TapDisabledByUserInput:
            return "withdrawn";
        }
        return text.data();
    }

private:
    void hear(EventType type, const InputEvent& event)
    {
        {
            const std::lock_guard lock(mutex_);
            heard_.push_back({type, event, clock_.now()});
        }
        changed_.notify_all();
        if (type == EventType::TapDisabledByTimeout) {
            tap_->setEnabled(true);
        }
    }

    LinuxClock clock_;
    LinuxThreads threads_;
    XInputEventTaps taps_;
    std::atomic<bool> isReady_{false};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Heard> heard_; // under mutex_
    std::vector<Heard> last_;
    std::unique_ptr<EventTap> tap_;
    std::unique_ptr<RunLoopSource> source_;
    std::unique_ptr<Thread> thread_;
};

} // namespace tocca::platform::linux
