#pragma once

#include "Figures.h"
#include "Instruments/Typist.h"

#include <string>

namespace tocca::latency {

class Subject;

/// What is typed, and what is shown meanwhile.
struct Condition {
    std::string name;
    int strokes = 0;
    instruments::Rhythm rhythm;
    bool hasOverlays = false;
};

/// Types to `subject` and returns how long its strokes took.
/// Threads: one that is not the subject's main thread. Errors: throws `std::runtime_error` when nothing is heard at all.
[[nodiscard]] Figures measure(Subject& subject, const Condition& condition);

} // namespace tocca::latency
