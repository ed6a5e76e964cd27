#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace tocca::soundpack {

/// The parts of a keyboard or typewriter that ring when they are hit.
enum class BankId {
    Deep,
    House,
    Cap,
    Plate,
    Leaf,
    Spring,
    Stab,
    Jacket,
    Crack,
    Platen,
    Typebar,
    Frame,
    Pawl,
    Lever,
    Bell,
    Carriage
};

/// The bank's name in random streams, which are fixed for ever (see RandomStream.h).
std::string_view streamName(BankId id);

/// One named resonance.
struct Mode {
    double hz;
    double t60Ms; ///< time in which it dies by 60 dB
    double gainDb;
};

/// One corner of a curve of level over frequency.
struct LevelAt {
    double hz;
    double db;
};

/// A dense row of resonances with drawn frequencies and amplitudes, as plates and frames have them.
///
/// Modes of a plate lie evenly over frequency; where each is wider than the step to the next, the plate sounds like a
/// burst of noise and not like a chord.
struct ModeField {
    double lowHz;
    double highHz;
    double spacingHz;
    double denserBelowHz; ///< below it the spacing shrinks in proportion, to 0.35 of itself at the least
    double t60Ms;         ///< decay without the loss that grows with frequency
    double lossFactor;
    double strokeMix; ///< 0: every stroke sounds like the same spot of the plate, 1: each like another
    double t60Spread = 0.4;
    std::vector<LevelAt> envelope; ///< rising in frequency; linear in between over log f, flat outside
};

/// Everything of one part that rings.
struct Bank {
    BankId id;
    int seed = 0; ///< another seed is another keyboard of the same make
    std::vector<Mode> modes = {};
    std::optional<ModeField> field = {};
};

} // namespace tocca::soundpack
