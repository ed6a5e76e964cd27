#include "Platform/Linux/X11/Input/KeyboardState.h"

#include "Platform/Linux/Keys/KeyMap.h"

#include <gtest/gtest.h>

#include <X11/X.h>
#include <X11/keysym.h>

#include <array>
#include <cstdio>
#include <optional>
#include <string>

namespace tocca::platform::linux {

namespace {

constexpr std::uint8_t xKey(std::uint32_t kernel)
{
    return static_cast<std::uint8_t>(kernel + 8);
}

/// "d0" for a press of key 0, "u0" for its release, "r0" for its repeat, "f56:20000" for changed flags.
std::string textOf(const std::optional<KeyTransition>& transition)
{
    if (!transition) {
        return "-";
    }
    const InputEvent& event = transition->event;
    const std::string code = std::to_string(event.keyCode);
    switch (transition->type) {
    case EventType::KeyDown:
        return (event.isAutorepeat ? "r" : "d") + code;
    case EventType::KeyUp:
        return "u" + code;
    default: {
        std::array<char, 32> flags{};
        std::snprintf(flags.data(), flags.size(), ":%lx", event.flags);
        return "f" + code + flags.data();
    }
    }
}

KeyRoles::Layout layoutWithCaps(std::uint32_t keysym, std::uint8_t modifiers)
{
    KeyRoles::Layout layout;
    layout.keysyms[xKey(KEY_CAPSLOCK)] = keysym;
    layout.modifiers[xKey(KEY_CAPSLOCK)] = modifiers;
    return layout;
}

TEST(KeyboardState, HoldsAModifierUntilItIsReleasedOnBothSides)
{
    KeyboardState keys;
    EXPECT_EQ(textOf(keys.press(xKey(KEY_LEFTSHIFT))), "f56:20000");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_RIGHTSHIFT))), "f60:20000");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_LEFTCTRL))), "f59:60000");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_LEFTSHIFT))), "f56:60000");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_RIGHTALT))), "f61:e0000");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_RIGHTSHIFT))), "f60:c0000");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_RIGHTMETA))), "f54:1c0000");
    EXPECT_EQ(keys.press(xKey(KEY_A))->event.flags, 0x1c0000U);
}

TEST(KeyboardState, PassesRepeatsOnAndIgnoresReleasesOfUnknownPresses)
{
    KeyboardState keys;
    EXPECT_EQ(textOf(keys.release(xKey(KEY_A))), "-");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_A))), "d0");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_A), true)), "r0");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_A))), "u0");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_A))), "-");
    keys.pressSilently(xKey(KEY_S));
    EXPECT_EQ(textOf(keys.press(xKey(KEY_S), true)), "r1");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_S))), "-") << "a repeat is no press";
}

TEST(KeyboardState, ReportsCapsLockByItsLock)
{
    KeyboardState keys;
    EXPECT_EQ(textOf(keys.press(xKey(KEY_CAPSLOCK))), "-");
    EXPECT_EQ(textOf(keys.setLocked(true)), "f57:10000");
    EXPECT_EQ(textOf(keys.setLocked(true)), "-");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_CAPSLOCK))), "-");
    EXPECT_EQ(textOf(keys.press(xKey(KEY_LEFTSHIFT))), "f56:30000");
    EXPECT_EQ(textOf(keys.setLocked(false)), "f57:20000");
}

TEST(KeyboardState, TakesARemappedCapsLockForWhatItIs)
{
    const struct {
        const char* name;
        KeyRoles::Layout layout;
        const char* pressed;
        const char* released;
    } kRows[] = {
        {"control", layoutWithCaps(XK_Control_L, ControlMask), "f57:40000", "f57:0"},
        {"control by its effect alone", layoutWithCaps(XK_Caps_Lock, LockMask | ControlMask), "f57:40000",
         "f57:0"},
        {"super", layoutWithCaps(XK_Super_L, Mod4Mask), "f57:100000", "f57:0"},
        {"escape", layoutWithCaps(XK_Escape, 0), "d57", "u57"},
        {"nothing", layoutWithCaps(XK_VoidSymbol, 0), "d57", "u57"},
        {"the usual", layoutWithCaps(XK_Caps_Lock, LockMask), "-", "-"},
    };

    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        KeyboardState keys;
        keys.setRoles(KeyRoles(row.layout));
        EXPECT_EQ(textOf(keys.press(xKey(KEY_CAPSLOCK))), row.pressed);
        EXPECT_EQ(textOf(keys.release(xKey(KEY_CAPSLOCK))), row.released);
    }
}

TEST(KeyboardState, ReportsTheLockUnderTheKeyThatToggledIt)
{
    KeyRoles::Layout layout = layoutWithCaps(XK_Escape, 0);
    layout.keysyms[xKey(KEY_ESC)] = XK_Caps_Lock;
    layout.modifiers[xKey(KEY_ESC)] = LockMask;
    KeyboardState keys;
    keys.setRoles(KeyRoles(layout));
    EXPECT_EQ(textOf(keys.press(xKey(KEY_ESC))), "-");
    EXPECT_EQ(textOf(keys.setLocked(true)), "f53:10000");
}

TEST(KeyboardState, ReleasesWhatWentUpWhileNothingWasHeard)
{
    KeyboardState keys;
    EXPECT_TRUE(keys.press(xKey(KEY_A)));
    EXPECT_TRUE(keys.press(xKey(KEY_S)));
    EXPECT_TRUE(keys.press(xKey(KEY_LEFTSHIFT)));
    KeyboardState::Keys down;
    down.set(xKey(KEY_S));
    down.set(xKey(KEY_LEFTCTRL)); // went down meanwhile
    std::string reported;
    keys.resynchronize(down, true,
                       [&](const KeyTransition& transition) { reported += textOf(transition) + ' '; });
    EXPECT_EQ(reported, "u0 f56:0 f57:50000 ");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_S))), "u1");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_LEFTCTRL))), "f59:10000");
}

TEST(KeyboardState, MakesUpForASilentTimeAndForgetsWhatWasTypedInIt)
{
    KeyboardState keys;
    EXPECT_TRUE(keys.press(xKey(KEY_A)));
    EXPECT_TRUE(keys.press(xKey(KEY_S)));
    EXPECT_TRUE(keys.press(xKey(KEY_LEFTSHIFT)));
    keys.releaseSilently(xKey(KEY_A));
    keys.releaseSilently(xKey(KEY_S));
    keys.releaseSilently(xKey(KEY_LEFTSHIFT));
    keys.pressSilently(xKey(KEY_S)); // down again, as far as anybody knows it never was up
    keys.pressSilently(xKey(KEY_D));
    keys.releaseSilently(xKey(KEY_D));
    keys.pressSilently(xKey(KEY_F));
    keys.pressSilently(xKey(KEY_LEFTMETA));
    std::string reported;
    const auto report = [&](const KeyTransition& transition) { reported += textOf(transition) + ' '; };
    keys.catchUp(report);
    EXPECT_EQ(reported, "u0 f56:0 ") << "what went down since must not make the release look like a press";
    EXPECT_EQ(keys.press(xKey(KEY_G))->event.flags, 0x100000U);
    EXPECT_EQ(textOf(keys.release(xKey(KEY_F))), "-");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_LEFTMETA))), "f55:0");
    EXPECT_EQ(textOf(keys.release(xKey(KEY_S))), "u1");
    reported.clear();
    keys.catchUp(report);
    EXPECT_EQ(reported, "");
}

} // namespace

} // namespace tocca::platform::linux
