#pragma once

#include "Platform/AudioDevices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tocca::platform {

/// What every implementation of `AudioDevices` keeps to.
///
/// `Machine` is default constructible with a sound server without microphones and hands out `devices()`, `plugIn(microphone)`,
/// `startCapture(microphone)`, `stopCapture(microphone)`, `stopServer()`, `startServer()`, and `eventually(condition)`, which
/// gives the machine time until the condition holds.
template <class Machine>
class AudioDevicesConformance : public ::testing::Test {
protected:
    /// "mic idle headset running", by name, or "error".
    std::string state()
    {
        auto devices = machine_.devices().devices();
        if (!devices) {
            EXPECT_NE(devices.error().describe(), "") << "an error without a reason";
            return "error";
        }
        auto& list = devices.value();
        std::sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
        std::string text;
        for (const AudioDevice& device : list) {
            if (device.hasInputStreams) {
                text += (text.empty() ? "" : " ") + device.name +
                        (device.isRunningSomewhere ? " running" : " idle");
            }
        }
        return text;
    }

    void expectEventually(const std::string& expected)
    {
        EXPECT_TRUE(machine_.eventually([&] { return state() == expected; }))
            << "is \"" << state() << "\" instead of \"" << expected << '"';
    }

    Machine machine_;
};

TYPED_TEST_SUITE_P(AudioDevicesConformance);

TYPED_TEST_P(AudioDevicesConformance, TellWhichMicrophoneIsRecordedFrom)
{
    this->expectEventually("");
    this->machine_.plugIn("headset");
    this->machine_.plugIn("webcam");
    this->expectEventually("headset idle webcam idle");
    this->machine_.startCapture("webcam");
    this->expectEventually("headset idle webcam running");
    this->machine_.startCapture("headset");
    this->expectEventually("headset running webcam running");
    this->machine_.stopCapture("webcam");
    this->expectEventually("headset running webcam idle");
    this->machine_.stopCapture("headset");
    this->expectEventually("headset idle webcam idle");
}

TYPED_TEST_P(AudioDevicesConformance, AreAnErrorWithoutAServerAndBackWithIt)
{
    this->machine_.plugIn("headset");
    this->machine_.startCapture("headset");
    this->expectEventually("headset running");
    this->machine_.stopServer();
    this->expectEventually("error");
    this->machine_.startServer();
    this->machine_.plugIn("headset");
    this->expectEventually("headset idle");
}

REGISTER_TYPED_TEST_SUITE_P(AudioDevicesConformance, TellWhichMicrophoneIsRecordedFrom,
                            AreAnErrorWithoutAServerAndBackWithIt);

} // namespace tocca::platform
