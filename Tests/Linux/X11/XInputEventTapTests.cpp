#include "Instruments/XServer.h"
#include "Instruments/XTestKeyboard.h"
#include "Linux/X11/Listener.h"

#include <gtest/gtest.h>

#include <linux/input-event-codes.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <vector>

namespace tocca::platform::linux {

namespace {

using instruments::XServer;

class XInputEventTap : public ::testing::Test {
protected:
    void strike(std::uint16_t key)
    {
        keyboard_.press(key);
        keyboard_.release(key);
    }

    void click(std::uint8_t button)
    {
        keyboard_.pressButton(button);
        keyboard_.releaseButton(button);
    }

    /// What is heard up to a stroke of F12 that follows now: events come in order, so nothing is missed.
    std::string heardBy(Listener& listener, const std::string& flags = "0")
    {
        strike(KEY_F12);
        std::string all = listener.until("u111:" + flags);
        const std::string end = "d111:" + flags + " u111:" + flags + ' ';
        EXPECT_TRUE(all.ends_with(end)) << all;
        return all.substr(0, all.size() - std::min(all.size(), end.size()));
    }

    XServer server_;
    instruments::XTestKeyboard keyboard_;
};

TEST_F(XInputEventTap, HearsEachKindOfEventInOrder)
{
    Listener listener;
    strike(KEY_A);
    for (std::uint8_t button = 1; button <= 9; ++button) {
        click(button);
    }
    strike(KEY_LEFTMETA);
    strike(KEY_CAPSLOCK);
    strike(KEY_CAPSLOCK);
    strike(KEY_102ND);
    EXPECT_EQ(heardBy(listener),
              "d0:0 u0:0 l o r w1 w-1 w0 w0 o o f55:100000 f55:0 f57:10000 f57:0 d50:0 u50:0 ");
}

TEST_F(XInputEventTap, HearsOnlyWhatItsMaskNames)
{
    Listener listener(maskOf(EventType::KeyDown) | maskOf(EventType::KeyUp));
    strike(KEY_LEFTSHIFT);
    strike(KEY_A);
    click(1);
    click(4);
    EXPECT_EQ(heardBy(listener), "d0:0 u0:0 ");
}

TEST_F(XInputEventTap, KnowsTheStateThatItFindsAtTheStart)
{
    strike(KEY_CAPSLOCK);
    keyboard_.press(KEY_LEFTSHIFT);
    keyboard_.press(KEY_S);
    Listener listener;
    keyboard_.release(KEY_S);
    keyboard_.press(KEY_A);
    keyboard_.release(KEY_LEFTSHIFT);
    EXPECT_EQ(heardBy(listener, "10000"), "u1:30000 d0:30000 f56:10000 ");
}

TEST_F(XInputEventTap, FollowsARemappedCapsLockKey)
{
    Listener listener;
    const auto expectEventually = [&](const std::string& expected) {
        constexpr int kTries = 2000; // the layout is read again behind the first strokes
        std::string heard;
        for (int i = 0; i < kTries && heard != expected; ++i) {
            strike(KEY_CAPSLOCK);
            heard = heardBy(listener);
        }
        EXPECT_EQ(heard, expected);
    };
    XServer::setLayoutOption("ctrl:nocaps");
    expectEventually("f57:40000 f57:0 ");
    XServer::setLayoutOption("caps:escape");
    expectEventually("d57:0 u57:0 ");
    XServer::setLayoutOption("caps:ctrl_modifier");
    expectEventually("f57:40000 f57:0 ");
    XServer::setLayoutOption("caps:none");
    expectEventually("d57:0 u57:0 ");
}

TEST_F(XInputEventTap, GivesEventsTheTimeAtWhichTheyHappened)
{
    constexpr int kStrokes = 50;
    constexpr double kSlack = 0.5; // seconds; how long a loaded machine may take
    Listener listener;
    std::vector<double> sent;
    for (int i = 0; i < kStrokes; ++i) {
        sent.push_back(keyboard_.press(KEY_A));
        sent.push_back(keyboard_.release(KEY_A));
    }
    heardBy(listener);
    const auto& heard = listener.last();
    ASSERT_GE(heard.size(), sent.size());
    for (std::size_t i = 0; i < sent.size(); ++i) {
        const double time = heard[i].event.time;
        EXPECT_GE(time, sent[i]);
        EXPECT_LT(time, sent[i] + kSlack);
        EXPECT_LE(time, heard[i].arrival);
        EXPECT_GE(time, i == 0 ? 0.0 : heard[i - 1].event.time);
    }
}

TEST_F(XInputEventTap, HearsKeysWhileAnotherClientGrabsTheKeyboard)
{
    Listener listener;
    const XServer::KeyboardGrab grab;
    ASSERT_TRUE(grab.isActive());
    strike(KEY_A);
    EXPECT_EQ(heardBy(listener), "d0:0 u0:0 ");
}

TEST_F(XInputEventTap, WithholdsKeysWhileTheGateIsClosed)
{
    std::atomic<bool> isOpen{true};
    Listener listener(Listener::kEverything, [&isOpen] { return isOpen.load(); });
    keyboard_.press(KEY_A);
    EXPECT_EQ(listener.until("d0:0"), "d0:0 ");

    isOpen = false;
    keyboard_.release(KEY_A); // was pressed before
    strike(KEY_S);
    strike(KEY_CAPSLOCK);
    keyboard_.press(KEY_LEFTSHIFT);
    keyboard_.press(KEY_ENTER);
    click(1); // a click tells nothing
    EXPECT_EQ(listener.until("l"), "l ");

    isOpen = true;
    keyboard_.release(KEY_ENTER); // nobody was told that it is down
    keyboard_.release(KEY_LEFTSHIFT);
    EXPECT_EQ(heardBy(listener, "10000"), "u0:0 f57:30000 f56:10000 ");
}

TEST_F(XInputEventTap, IsSilentWhileDisabledAndCatchesUpWhenItIsEnabled)
{
    Listener listener;
    keyboard_.press(KEY_A);
    EXPECT_EQ(listener.until("d0:0"), "d0:0 ");
    listener.tap().setEnabled(false);
    keyboard_.release(KEY_A);
    strike(KEY_S);
    click(1);
    {
        Listener witness; // by then the server has seen all of it
        heardBy(witness);
    }
    listener.tap().setEnabled(true);
    EXPECT_EQ(listener.until("u0:0"), "u0:0 ");
    EXPECT_EQ(heardBy(listener), "");
}

TEST_F(XInputEventTap, HearsNothingOnceItIsDetached)
{
    Listener listener;
    listener.detach();
    strike(KEY_A);
    Listener witness;
    heardBy(witness);
    EXPECT_EQ(listener.count(), 0U);
    listener.tap().setEnabled(false); // still allowed, and without effect
    listener.tap().setEnabled(true);
}

TEST_F(XInputEventTap, ComesBackWithTheServerAndLeavesNoKeyStuck)
{
    Listener listener;
    keyboard_.press(KEY_A);
    keyboard_.press(KEY_LEFTSHIFT);
    EXPECT_EQ(listener.until("f56:20000"), "d0:0 f56:20000 ");
    server_.kill();
    EXPECT_EQ(listener.until("lost"), "lost ");
    server_.start();
    EXPECT_EQ(listener.until("f56:0"), "u0:20000 f56:0 ");

    instruments::XTestKeyboard another;
    another.press(KEY_S);
    EXPECT_EQ(listener.until("d1:0"), "d1:0 ");
}

TEST_F(XInputEventTap, CannotBeMadeWithoutAServer)
{
    server_.kill();
    XInputEventTaps taps;
    EXPECT_EQ(taps.create(Listener::kEverything, [](EventType, const InputEvent&) {}), nullptr);
}

} // namespace

} // namespace tocca::platform::linux
