#pragma once

#include "Instruments/Hearing.h"
#include "Instruments/MonitorRecorder.h"
#include "Instruments/Typist.h"

#include <chrono>
#include <random>
#include <span>

namespace tocca::instruments {

/// Types `keys` and returns what was heard of them, waiting for the end of the last sound.
/// Errors: throws `std::runtime_error` when the sink does not play for as long as `deadline`.
[[nodiscard]] Hearing typeAndHear(XTestKeyboard& keyboard, const MonitorRecorder& recorder,
                                  std::span<const std::uint16_t> keys, const Rhythm& rhythm,
                                  std::mt19937& random, std::chrono::milliseconds deadline);

/// Presses a key again and again until it is heard; false when that takes longer than `deadline`.
/// Errors: those of `typeAndHear`.
[[nodiscard]] bool becomesAudible(XTestKeyboard& keyboard, const MonitorRecorder& recorder,
                                  std::chrono::milliseconds deadline);

} // namespace tocca::instruments
