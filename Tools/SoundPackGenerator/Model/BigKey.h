#pragma once

#include "Model/Slot.h"
#include "Model/Stroke.h"

#include <map>

namespace tocca::soundpack {

/// How space, enter or backspace differs from a letter key of the same keyboard: a longer and heavier cap, a far side
/// that lands later, and a stabiliser whose wire ticks in its clips.
struct BigKey {
    Key key;
    double capScale; ///< of the frequencies of that bank, like the next three
    double deepScale;
    double plateScale;
    double houseScale;
    double deepDb;
    double capDb;
    double speed;     ///< of the main impact, relative to the letter key
    double bumpSpeed; ///< of the bump likewise
    double farSideMs;
    double farSideDb;
    int ticks;
    double tickSpanMs;
    double stabiliserDb;
    double extraMs; ///< that the sound may last longer
};

/// Changes to a bank for one slot.
struct BankTuning {
    double scale = 1; ///< of all its frequencies
    double gainDb = 0;
};

/// A stroke together with the state of the banks it is played on.
struct TunedStroke {
    Stroke stroke;
    std::map<BankId, BankTuning> tuning;
};

/// The stroke of a big key, derived from the letter key's.
TunedStroke onBigKey(const BigKey& key, Action action, const Stroke& letterKey);

} // namespace tocca::soundpack
