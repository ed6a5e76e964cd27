#pragma once

#include "Figures.h"

#include <string>

namespace tocca::testkit {
class MonitorRecorder;
class XTestKeyboard;
} // namespace tocca::testkit

namespace tocca::latency {

class Subject;

/// Types `strokes` keys to `subject` and returns how long they took.
/// Threads: one that is not the subject's main thread. Errors: throws `std::runtime_error` when nothing is heard at all.
[[nodiscard]] Figures measure(Subject& subject, const std::string& condition, int strokes);

} // namespace tocca::latency
