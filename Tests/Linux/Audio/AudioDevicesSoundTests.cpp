#include "Instruments/Process.h"
#include "Instruments/Waiting.h"
#include "OwnRecording.h"
#include "Platform/AudioDevicesConformance.h"
#include "Platform/Linux/Audio/LinuxAudioDevices.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tocca::platform {
namespace {

/// A sound server in the private session, and programs that record from it.
template <class Kind>
class SoundMachine {
public:
    SoundMachine()
    {
        control("stop-sound");
        startServer();
        devices_ =
            std::make_unique<linux::LinuxAudioDevices>(linux::LinuxAudioDevicesOptions{Kind::kUsesPipeWire});
    }

    AudioDevices& devices() { return *devices_; }

    void plugIn(const std::string& name) { run("pactl load-module " + Kind::microphone(name)); }

    void startCapture(const std::string& name)
    {
        programs_.try_emplace(name, std::make_unique<instruments::Process>(
                                        std::vector<std::string>{"sh", "-c", Kind::record(name)}));
    }

    void stopCapture(const std::string& name) { programs_.erase(name); }

    void stopServer() { control("stop-sound"); }

    void startServer() { control(std::string("start-sound ") + Kind::kServer); }

    /// Starts a program that the test ends with `stopCapture`.
    void start(const std::string& name, const std::string& command)
    {
        programs_.try_emplace(name, std::make_unique<instruments::Process>(
                                        std::vector<std::string>{"sh", "-c", "exec " + command}));
    }

    static void run(const std::string& command)
    {
        instruments::Process process({"sh", "-c", command + " >/dev/null"});
        EXPECT_EQ(process.waitForExit(instruments::kPatience), 0) << command << '\n' << process.output();
    }

    template <class Condition>
    bool eventually(const Condition& condition)
    {
        return instruments::becomesTrue(condition);
    }

private:
    static void control(const std::string& command) { run("\"$PRIVATE_SESSION\" " + command); }

    std::unique_ptr<linux::LinuxAudioDevices> devices_;
    std::map<std::string, std::unique_ptr<instruments::Process>> programs_;
};

struct PipeWireKind {
    static constexpr const char* kServer = "pipewire";
    static constexpr bool kUsesPipeWire = true;

    static std::string microphone(const std::string& name)
    {
        return "module-null-sink media.class=Audio/Source/Virtual channel_map=mono sink_name=" + name;
    }

    static std::string record(const std::string& name)
    {
        return "exec pw-record --target " + name + " /dev/null";
    }
};

struct PipeWirePulseKind : PipeWireKind {
    static constexpr bool kUsesPipeWire = false;

    static std::string record(const std::string& name)
    {
        return "exec parec --device=" + name + " >/dev/null";
    }
};

struct PulseAudioKind {
    static constexpr const char* kServer = "pulseaudio";
    static constexpr bool kUsesPipeWire = true;

    static std::string microphone(const std::string& name)
    {
        return "module-null-source source_name=" + name;
    }

    static std::string record(const std::string& name) { return PipeWirePulseKind::record(name); }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(PipeWire, AudioDevicesConformance, SoundMachine<PipeWireKind>);
INSTANTIATE_TYPED_TEST_SUITE_P(PipeWirePulse, AudioDevicesConformance, SoundMachine<PipeWirePulseKind>);
INSTANTIATE_TYPED_TEST_SUITE_P(PulseAudio, AudioDevicesConformance, SoundMachine<PulseAudioKind>);

namespace {

/// What records, or does not, beside the plain cases.
template <class Kind>
class Microphones : public AudioDevicesConformance<SoundMachine<Kind>> {
protected:
    void SetUp() override
    {
        this->machine_.plugIn("headset");
        this->expectEventually("headset idle");
    }

    /// Whether `command` leaves the microphone idle: a plain recording that starts later is seen, and it is not.
    void expectNoCapture(const std::string& command)
    {
        SCOPED_TRACE(command);
        this->machine_.start("suspect", command);
        // Until it runs there is nothing to be seen of it.
        ASSERT_TRUE(this->machine_.eventually([] {
            instruments::Process list({"sh", "-c", "pactl list source-outputs | grep 'Corked: no'"});
            return list.waitForExit(instruments::kPatience) == 0;
        }));
        this->machine_.plugIn(
            "witness"); // events come in order: by the time this one is known, so is the suspect's
        this->expectEventually("headset idle witness idle");
        this->machine_.stopCapture("suspect");
        SoundMachine<Kind>::run("pactl unload-module $(pactl list short modules | grep witness | cut -f1)");
        this->expectEventually("headset idle");
    }
};

using PipeWireMicrophones = Microphones<PipeWireKind>;
using PulseAudioMicrophones = Microphones<PulseAudioKind>;

TEST_F(PipeWireMicrophones, AreIdleWhileOnlyWhatIsPlayedIsListenedTo)
{
    expectNoCapture("pw-record -P '{ stream.capture.sink=true }' /dev/null");
    expectNoCapture("parec --device=speaker.monitor >/dev/null");
    expectNoCapture("pw-record -P '{ stream.monitor=true }' --target headset /dev/null");
}

TEST_F(PipeWireMicrophones, AreIdleWhileThisProgramItselfRecords)
{
    linux::OwnRecording own("headset");
    ASSERT_TRUE(machine_.eventually([&] { return own.hasHeard(); }));
    EXPECT_EQ(state(), "headset idle");
    machine_.startCapture("headset");
    expectEventually("headset running");
}

TEST_F(PulseAudioMicrophones, AreIdleWhileOnlyWhatIsPlayedIsListenedTo)
{
    expectNoCapture("parec --device=speaker.monitor >/dev/null");
}

} // namespace
} // namespace tocca::platform
