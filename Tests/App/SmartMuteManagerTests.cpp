#include "App/SmartMuteManager.h"
#include "Platform/Memory/MemoryHost.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tocca::app {
namespace {

using platform::ApplicationKind;
using platform::RunningApplication;
using platform::memory::MemoryHost;

const RunningApplication kEditor{.bundleIdentifier = "org.example.editor", .localizedName = "Editor"};
const RunningApplication kVault{.bundleIdentifier = "COM.Bitwarden.Desktop", .localizedName = "Bitwarden"};
const RunningApplication kCall{.bundleIdentifier = "us.zoom.xos", .localizedName = "zoom"};

constexpr const char* kMicrophone = "Microphone in use (Call in progress)";

struct SmartMuteTest : testing::Test {
    /// The reason shown, or "audible".
    std::string verdict()
    {
        host.settle();
        EXPECT_EQ(mute.isMutedNow(), mute.isSmartMuted.get());
        return mute.isSmartMuted.get() ? mute.smartMuteReason.get().value_or("muted without a reason")
                                       : "audible";
    }

    std::string inFront(const std::optional<RunningApplication>& application)
    {
        host.workspace().activate(application);
        return verdict();
    }

    MemoryHost host;
    SmartMuteManager mute{host};
};

TEST_F(SmartMuteTest, JudgesWhoeverComesToTheFront)
{
    struct Row {
        RunningApplication application;
        const char* verdict;
    };

    const Row rows[] = {
        {kEditor, "audible"},
        {kVault, "Privacy • Bitwarden active"},
        {{.bundleIdentifier = "com.lastpass.lastpass", .localizedName = {}},
         "Privacy • Password Manager active"},
        {{.bundleIdentifier = {}, .localizedName = "My PassWords"}, "Privacy • My PassWords active"},
        {{.bundleIdentifier = {}, .localizedName = "Keychain Helper"}, "Privacy • Keychain Helper active"},
        {kCall, "Call App Active • zoom"},
        {{.bundleIdentifier = "com.apple.facetime", .localizedName = {}}, "Call App Active • Call"},
        {{.bundleIdentifier = "org.example.vault", .kind = ApplicationKind::passwordStore},
         "Privacy • Password Manager active"},
        {{.bundleIdentifier = "org.example.calls", .kind = ApplicationKind::call}, "Call App Active • Call"},
        {{.bundleIdentifier = {}, .localizedName = "zoom"}, "audible"},
        {{.bundleIdentifier = "com.discord.canary", .localizedName = "Discord"}, "audible"},
        {{}, "audible"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.application.localizedName.value_or("nameless"));
        EXPECT_EQ(inFront(row.application), row.verdict);
    }
    inFront(kVault);
    EXPECT_EQ(inFront(std::nullopt), "Privacy • Bitwarden active") << "an unknown newcomer proves nothing";
}

TEST_F(SmartMuteTest, JudgesWhoIsInFrontWhenItStarts)
{
    host.workspace().activate(kCall);
    const SmartMuteManager late(host);
    host.settle();
    EXPECT_TRUE(late.isSmartMuted.get());
}

TEST_F(SmartMuteTest, FollowsTheMicrophoneByItsPoll)
{
    host.advance(0.2);
    host.audioDevices().startCapture("headset");
    EXPECT_EQ(verdict(), "audible");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone);

    host.audioDevices().plugIn({.name = "camera", .hasInputStreams = true, .isRunningSomewhere = true});
    host.audioDevices().stopCapture("headset");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone);

    host.audioDevices().unplug("camera");
    host.advance(1.5);
    EXPECT_EQ(verdict(), "audible");
}

TEST_F(SmartMuteTest, IgnoresOutputsAndLostServers)
{
    host.audioDevices().plugIn({.name = "loudspeaker", .hasInputStreams = false, .isRunningSomewhere = true});
    host.advance(1.5);
    EXPECT_EQ(verdict(), "audible");

    host.audioDevices().startCapture("headset");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone);
    host.audioDevices().isServerRunning = false;
    host.advance(1.5);
    EXPECT_EQ(verdict(), "audible");
}

TEST_F(SmartMuteTest, PutsTheMicrophoneFirstAndLeavesItsReasonUntilTheNextActivation)
{
    inFront(kVault);
    host.audioDevices().startCapture("headset");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone);
    EXPECT_EQ(inFront(kCall), kMicrophone);

    host.audioDevices().stopCapture("headset");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone) << "still muted by the call program";
    EXPECT_EQ(inFront(kVault), "Privacy • Bitwarden active");
    EXPECT_EQ(inFront(kEditor), "audible");
}

TEST_F(SmartMuteTest, HeedsEachSwitchWhenItNextLooks)
{
    inFront(kVault);
    mute.muteOnSensitiveApps.set(false);
    EXPECT_EQ(verdict(), "Privacy • Bitwarden active") << "a switch alone recomputes nothing";
    EXPECT_EQ(inFront(kVault), "audible");
    mute.muteOnSensitiveApps.set(true);

    mute.autoMuteOnCalls.set(false);
    EXPECT_EQ(inFront(kVault), "Privacy • Bitwarden active");
    EXPECT_EQ(inFront(kCall), "audible");

    const int queries = host.audioDevices().queryCount;
    host.advance(15);
    EXPECT_EQ(host.audioDevices().queryCount, queries) << "switched off, it asks for no device";

    mute.autoMuteOnCalls.set(true);
    host.audioDevices().startCapture("headset");
    host.advance(1.5);
    EXPECT_EQ(verdict(), kMicrophone);
    mute.autoMuteOnCalls.set(false);
    host.advance(1.5);
    EXPECT_EQ(verdict(), "audible") << "switching off lets go of the microphone at the next poll";
}

} // namespace
} // namespace tocca::app
