#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/Now.h"
#include "Instruments/XWindow.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <optional>
#include <string>
#include <thread>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;
using instruments::now;
using instruments::Process;
using instruments::XWindow;

/// Seconds within which a call must be noticed. It is looked for every 1.5 s; the rest is for a busy computer.
constexpr double kNoticed = 3.0;
constexpr auto kBetweenStrokes = 60ms;

class SmartMute : public ProgramAtWork {
protected:
    static void run(const std::string& command)
    {
        Process process({"sh", "-c", command + " >/dev/null"});
        ASSERT_EQ(process.waitForExit(kPatience), 0) << process.output();
    }

    /// Strikes a key again and again until `end`, and returns when what was heard since began.
    std::vector<instruments::Sound> typeUntil(double end)
    {
        const double from = now();
        while (now() < end) {
            strike();
        }
        return soundsSince(from);
    }

    void strike()
    {
        keyboard.press(KEY_G);
        std::this_thread::sleep_for(kBetweenStrokes / 2);
        keyboard.release(KEY_G);
        std::this_thread::sleep_for(kBetweenStrokes / 2);
    }

    /// Strikes until nothing has been heard for a while, and returns when the last sound began; nothing when it never ends.
    std::optional<double> lastSoundSince(double from)
    {
        constexpr double kSilence = 0.4;
        double last = from;
        while (now() < last + kSilence) {
            const double struck = now();
            strike();
            for (const instruments::Sound& sound : soundsSince(struck)) {
                last = sound.time;
            }
            if (now() > from + kNoticed + kSilence) {
                return std::nullopt;
            }
        }
        return last;
    }

    /// Strikes until a stroke stays unheard; false when every one is heard until the deadline.
    bool becomesSilent()
    {
        const double end = now() + std::chrono::duration<double>(kPatience).count();
        while (now() < end) {
            std::this_thread::sleep_for(100ms); // beyond the sound of the stroke before
            const double from = now();
            strike();
            if (soundsSince(from).empty()) {
                return true;
            }
        }
        return false;
    }

    bool becomesAudible() { return instruments::becomesAudible(keyboard, *recorder, kPatience); }

    void click(std::uint8_t button)
    {
        keyboard.pressButton(button);
        std::this_thread::sleep_for(40ms);
        keyboard.releaseButton(button);
        std::this_thread::sleep_for(160ms);
    }

    /// How many sounds a key, a notch of the wheel and a click make, in this order: the click may bring another window to the
    /// front.
    std::array<std::size_t, 3> heardOfEach()
    {
        std::this_thread::sleep_for(300ms); // the end of whatever sounds
        std::array<std::size_t, 3> heard{};
        double from = now();
        strike();
        std::this_thread::sleep_for(150ms);
        heard[0] = soundsSince(from).size();
        from = now();
        click(4);
        heard[1] = soundsSince(from).size();
        from = now();
        click(1);
        heard[2] = soundsSince(from).size();
        return heard;
    }

    static constexpr std::array<std::size_t, 3> kAll{1, 1, 1};
    static constexpr std::array<std::size_t, 3> kNone{0, 0, 0};
};

TEST_F(SmartMute, IsSilentWhileAMicrophoneIsRecordedFrom)
{
    run("pactl load-module module-null-sink media.class=Audio/Source/Virtual sink_name=mic channel_map=mono");
    ASSERT_TRUE(becomesAudible()) << "a microphone alone is no call";

    constexpr int kRounds = 4; // each meets the program at another moment between its looks
    for (int round = 0; round < kRounds; ++round) {
        const double started = now();
        std::optional<double> last;
        {
            const Process call({"pw-record", "--target", "mic", "/dev/null"});
            last = lastSoundSince(started);
            ASSERT_TRUE(last) << "still heard " << kNoticed << " s after the recording began";
        }
        const double ended = now();
        ASSERT_TRUE(becomesAudible());
        const double first = soundsSince(ended).front().time;
        EXPECT_LT(first - ended, kNoticed);
        std::printf("silent %.2f s after a recording began, audible %.2f s after it ended\n", *last - started,
                    first - ended);
        std::this_thread::sleep_for(round * 400ms);
    }
}

TEST_F(SmartMute, StaysAudibleWhileOnlyTheLoudspeakerIsRecorded)
{
    const Process screenRecorder({"sh", "-c", "exec parec --device=speaker.monitor >/dev/null"});
    const Process meter({"pw-record", "-P", "{ stream.capture.sink=true }", "/dev/null"});
    const double started = now();
    const auto sounds = typeUntil(started + kNoticed + 0.5);
    ASSERT_FALSE(sounds.empty());
    EXPECT_GT(sounds.back().time, started + kNoticed);
}

TEST_F(SmartMute, IsSilentInFrontOfAPasswordManager)
{
    XWindow editor({.instance = "editor", .className = "Editor"});
    editor.takeFocus();
    ASSERT_TRUE(becomesAudible());
    EXPECT_EQ(heardOfEach(), kAll);

    XWindow vault({.instance = "keepassxc", .className = "KeePassXC"});
    vault.activate();
    ASSERT_TRUE(becomesSilent());
    EXPECT_EQ(heardOfEach(), kNone);

    editor.activate();
    ASSERT_TRUE(becomesAudible());
    EXPECT_EQ(heardOfEach(), kAll);
}

TEST_F(SmartMute, KeepsKeysAloneSilentInFrontOfAPasswordPrompt)
{
    XWindow editor({.instance = "editor", .className = "Editor"});
    {
        XWindow prompt({.instance = "pinentry-gtk-2", .className = "Pinentry-gtk-2"});
        prompt.activate();
        ASSERT_TRUE(becomesSilent());
        EXPECT_EQ(heardOfEach(), (std::array<std::size_t, 3>{0, 1, 1}));
    }
    ASSERT_TRUE(becomesAudible());
    EXPECT_EQ(heardOfEach(), kAll);
}

} // namespace
} // namespace tocca::endtoend
