#pragma once

#include "Instruments/Onsets.h"
#include "Instruments/Recording.h"
#include "Instruments/Typist.h"

#include <optional>
#include <vector>

namespace tocca::instruments {

/// A sound of a recording, and when it began (seconds on CLOCK_MONOTONIC).
struct Sound {
    double time = 0.0;
    Onset onset;
};

/// Which strokes were heard.
struct Hearing {
    std::vector<Stroke> strokes;
    std::vector<std::optional<Sound>> ofStroke; ///< one for each of `strokes`, nothing for a missed one
    std::vector<Sound> others;                  ///< what no stroke, or a stroke heard already, accounts for

    [[nodiscard]] std::size_t heard() const noexcept;
};

/// The sounds of `recording` that begin at `from` (seconds) or later.
[[nodiscard]] std::vector<Sound> soundsOf(const Recording& recording, double from);

/// Gives each sound of `recording` since the first stroke to the last stroke before it.
[[nodiscard]] Hearing hear(std::vector<Stroke> strokes, const Recording& recording);

} // namespace tocca::instruments
