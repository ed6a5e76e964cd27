#include "Instruments/Rehearsal.h"

#include "Instruments/Now.h"

#include <array>
#include <linux/input-event-codes.h>
#include <stdexcept>
#include <thread>
#include <utility>

namespace tocca::instruments {

namespace {

constexpr std::chrono::milliseconds kTail{300}; // longer than any sound

} // namespace

Hearing typeAndHear(XTestKeyboard& keyboard, const MonitorRecorder& recorder,
                    std::span<const std::uint16_t> keys, const Rhythm& rhythm, std::mt19937& random,
                    std::chrono::milliseconds deadline)
{
    std::vector<Stroke> strokes = type(keyboard, keys, rhythm, random);
    std::this_thread::sleep_for(kTail);
    if (!recorder.waitUntil(now(), deadline)) {
        throw std::runtime_error("the sink has stopped playing");
    }
    return hear(std::move(strokes), recorder.recording());
}

bool becomesAudible(XTestKeyboard& keyboard, const MonitorRecorder& recorder,
                    std::chrono::milliseconds deadline)
{
    constexpr std::array<std::uint16_t, 1> kKey{KEY_G};
    std::mt19937 random; // NOLINT(cert-msc51-cpp): of a single key there is nothing random
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (std::chrono::steady_clock::now() < end) {
        if (typeAndHear(keyboard, recorder, kKey, {}, random, deadline).heard() > 0) {
            return true;
        }
    }
    return false;
}

} // namespace tocca::instruments
