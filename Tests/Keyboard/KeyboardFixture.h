#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Memory/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tocca::keyboard {

inline constexpr const char* kStarted =
    "✅ Global dedicated keyboard & peripheral tap thread running permanently!";
inline constexpr const char* kNotPermitted = "Cannot start: Accessibility permission not granted yet.";

/// A machine with one pack and an engine, on which a test starts the monitor when it is ready.
struct KeyboardFixture : testing::Test {
    KeyboardFixture()
    {
        host.files().write("/app/resources/SoundPacks/holy-panda/press.wav", "press");
        host.files().write("/app/resources/SoundPacks/holy-panda/release.wav", "release");
        engine.playUpstroke.set(true);
    }

    KeyboardMonitor& startMonitor()
    {
        monitor = std::make_unique<KeyboardMonitor>(host, engine);
        host.settle();
        return *monitor;
    }

    /// Which strokes have sounded since the last call: 'p' a press, 'r' a release, 'c' a click or tick.
    std::string heard()
    {
        host.settle();
        std::string text;
        const auto& sounds = host.audioPlayers().sounds();
        for (; heardCount < sounds.size(); ++heardCount) {
            const std::string data = platform::memory::textOf(*sounds[heardCount]->data);
            text += data == "press" ? 'p' : data == "release" ? 'r' : 'c';
        }
        return text;
    }

    platform::memory::MemoryHost host;
    audio::SoundPackLoader loader{host};
    audio::AudioEngine engine{host, loader, [] { return false; }};
    std::unique_ptr<KeyboardMonitor> monitor;
    std::size_t heardCount = 0;
};

} // namespace tocca::keyboard
