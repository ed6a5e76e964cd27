#include "Instruments/Typist.h"

#include "Instruments/Now.h"

#include <array>
#include <chrono>
#include <linux/input-event-codes.h>
#include <thread>

namespace tocca::instruments {

namespace {

constexpr std::array<std::uint16_t, 40> kOrdinaryKeys{
    KEY_Q, KEY_W, KEY_E, KEY_R, KEY_T, KEY_Y, KEY_U,     KEY_I,          KEY_O,         KEY_P,
    KEY_A, KEY_S, KEY_D, KEY_F, KEY_G, KEY_H, KEY_J,     KEY_K,          KEY_L,         KEY_SEMICOLON,
    KEY_Z, KEY_X, KEY_C, KEY_V, KEY_B, KEY_N, KEY_M,     KEY_COMMA,      KEY_DOT,       KEY_SLASH,
    KEY_1, KEY_2, KEY_3, KEY_4, KEY_5, KEY_6, KEY_MINUS, KEY_APOSTROPHE, KEY_LEFTBRACE, KEY_RIGHTBRACE,
};

void sleepUntil(double time)
{
    std::this_thread::sleep_for(std::chrono::duration<double>(time - now()));
}

} // namespace

std::vector<Stroke> type(XTestKeyboard& keyboard, std::span<const std::uint16_t> keys, const Rhythm& rhythm,
                         std::mt19937& random)
{
    std::uniform_real_distribution<double> interval(rhythm.shortest, rhythm.longest);
    std::vector<Stroke> strokes;
    strokes.reserve(keys.size());
    double due = now();
    for (const std::uint16_t key : keys) {
        sleepUntil(due);
        strokes.push_back({.key = key, .time = keyboard.press(key)});
        sleepUntil(strokes.back().time + rhythm.hold);
        keyboard.release(key);
        due = strokes.back().time + interval(random);
    }
    sleepUntil(due);
    return strokes;
}

std::span<const std::uint16_t> ordinaryKeys()
{
    return kOrdinaryKeys;
}

} // namespace tocca::instruments
