#include "Platform/Linux/Audio/PipeWire/CaptureGraph.h"

#include <gtest/gtest.h>

#include <string>

namespace tocca::platform::linux {
namespace {

enum : std::uint32_t {
    kMicrophone = 10,
    kSink,
    kPlayer,
    kRecorder,
    kFilter,
    kLink,
    kOtherLink,
    kClient,
    kNobody
};

/// A microphone, a loudspeaker, a playing program, a filter, and a program that is linked to one of them and records.
struct CaptureGraphTest : testing::Test {
    CaptureGraphTest()
    {
        graph.addNode(kMicrophone, kindOfNode("Audio/Source/Virtual"), "mic");
        graph.addNode(kSink, kindOfNode("Audio/Sink"), "speaker");
        graph.addNode(kPlayer, kindOfNode("Stream/Output/Audio"), "player");
        graph.addNode(kFilter, kindOfNode(""), "filter");
        graph.addNode(kRecorder, kindOfNode("Stream/Input/Audio"), "recorder");
        graph.setTraits(kRecorder, {.client = kClient});
        graph.setRunning(kRecorder, true);
    }

    /// What runs, by name.
    [[nodiscard]] std::string running() const
    {
        std::string names;
        for (const AudioDevice& device : graph.devices()) {
            EXPECT_TRUE(device.hasInputStreams);
            names += device.isRunningSomewhere ? device.name + ' ' : "";
        }
        return names;
    }

    CaptureGraph graph;
};

TEST_F(CaptureGraphTest, CountsWhatIsRecordedByWhereItComesFrom)
{
    const struct {
        const char* name;
        std::uint32_t from;
        const char* running;
    } kRows[] = {
        // NOLINT(modernize-avoid-c-arrays)
        {"a microphone", kMicrophone, "mic "},
        {"a loudspeaker", kSink, ""},
        {"a program that plays", kPlayer, ""},
        {"something that is no device", kFilter, "recorder "},
        {"something that is hidden from us", kNobody, "recorder "},
    };

    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        graph.addLink(kLink, {.from = row.from, .to = kRecorder});
        EXPECT_EQ(running(), row.running);
    }
    graph.addLink(kLink, {.from = kSink, .to = kRecorder});
    graph.addLink(kOtherLink, {.from = kMicrophone, .to = kRecorder});
    EXPECT_EQ(running(), "mic ") << "a loudspeaker mixed in changes nothing";
}

TEST_F(CaptureGraphTest, CountsNoStreamThatRecordsForNobody)
{
    EXPECT_EQ(running(), "") << "without a link it hears nothing";
    graph.addLink(kLink, {.from = kMicrophone, .to = kRecorder});
    graph.setTraits(kRecorder, {.client = kClient, .isBystander = true});
    EXPECT_EQ(running(), "");
    graph.setTraits(kRecorder, {.client = kClient, .isBystander = false});
    EXPECT_EQ(running(), "mic ");
    graph.setRunning(kRecorder, false);
    EXPECT_EQ(running(), "");
    graph.setRunning(kRecorder, true);
    graph.addOwnClient(kClient);
    EXPECT_EQ(running(), "") << "this program itself";
    graph.remove(kClient);
    EXPECT_EQ(running(), "mic ");
    graph.remove(kLink);
    EXPECT_EQ(running(), "");
}

TEST_F(CaptureGraphTest, WaitsForAStreamToTellWhatItIs)
{
    graph.addNode(kRecorder, kindOfNode("Stream/Input/Audio"), "newcomer");
    graph.setRunning(kRecorder, true);
    graph.addLink(kLink, {.from = kMicrophone, .to = kRecorder});
    EXPECT_EQ(running(), "");
    graph.setTraits(kRecorder, {.client = kClient});
    EXPECT_EQ(running(), "mic ");
}

TEST_F(CaptureGraphTest, TakesADummyForNoDevice)
{
    graph.clear();
    graph.addNode(kSink, kindOfNode("Audio/Sink"), "auto_null");
    EXPECT_FALSE(graph.hasDevices());
    graph.addNode(kMicrophone, kindOfNode("Audio/Duplex"), "headset");
    EXPECT_TRUE(graph.hasDevices());
    graph.remove(kMicrophone);
    EXPECT_FALSE(graph.hasDevices());
}

} // namespace
} // namespace tocca::platform::linux
