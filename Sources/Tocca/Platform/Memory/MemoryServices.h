#pragma once

#include "Platform/AudioDevices.h"
#include "Platform/Desktop/LoginItem.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Haptics.h"
#include "Platform/Random.h"
#include "Platform/StandardOutput.h"
#include "Platform/TrustQuery.h"
#include "Support/Listeners.h"

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::memory {

/// A permission that a test grants and withdraws.
class MemoryTrustQuery : public TrustQuery {
public:
    [[nodiscard]] bool isTrusted() override { return isGranted; }

    bool promptForTrust() override
    {
        ++promptCount;
        return isGranted;
    }

    bool isGranted = true;
    int promptCount = 0;
};

/// An actuator that counts its pulses.
class MemoryHaptics : public Haptics {
public:
    void performAlignment() override { ++pulseCount; }

    int pulseCount = 0;
};

/// A sound server whose microphones a test plugs in and records from.
class MemoryAudioDevices : public AudioDevices {
public:
    [[nodiscard]] Result<std::vector<AudioDevice>> devices() const override;

    /// Adds a device, or replaces the one of that name.
    void plugIn(const AudioDevice& device);
    void unplug(const std::string& name);

    /// A program begins or ends to record from the device, which is plugged in as a microphone if it is not yet.
    void startCapture(const std::string& name) { plugIn({name, true, true}); }

    void stopCapture(const std::string& name) { plugIn({name, true, false}); }

    bool isServerRunning = true;
    mutable int queryCount = 0;

private:
    std::vector<AudioDevice> devices_;
};

/// A login item that a test can make refuse, or change behind the program's back.
class MemoryLoginItem : public LoginItem {
public:
    [[nodiscard]] LoginItemStatus status() const override { return currentStatus; }

    Outcome registerItem() override { return change(LoginItemStatus::Enabled); }

    Outcome unregisterItem() override { return change(LoginItemStatus::NotRegistered); }

    LoginItemStatus currentStatus = LoginItemStatus::NotRegistered;
    std::optional<std::string> refusal; ///< when set, changes fail with it

private:
    Outcome change(LoginItemStatus status);
};

/// A desktop on which a test brings applications to the front.
class MemoryWorkspace : public Workspace {
public:
    bool openUrl(const std::string& url) override
    {
        openedUrls.push_back(url);
        return true;
    }

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return frontmost_;
    }

    [[nodiscard]] Subscription onActivation(ActivationHandler handler) override
    {
        return activations_.add(std::move(handler));
    }

    /// Brings `application` to the front, or leaves nothing there that the desktop could name.
    void activate(const std::optional<RunningApplication>& application);

    std::vector<std::string> openedUrls;

private:
    std::optional<RunningApplication> frontmost_;
    Listeners<const std::optional<RunningApplication>&> activations_;
};

/// Random bits that are the same on every run, or exactly those a test asks for.
class MemoryRandom : public Random {
public:
    [[nodiscard]] std::uint64_t next() override;

    /// Makes the following draws return `values`, in order, before the sequence goes on.
    void script(std::initializer_list<std::uint64_t> values) { scripted_.assign(values); }

private:
    std::deque<std::uint64_t> scripted_;
    std::uint64_t state_ = 0x9E3779B97F4A7C15;
};

/// Lines that a test reads.
class MemoryStandardOutput : public StandardOutput {
public:
    void printLine(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

} // namespace tocca::platform::memory
