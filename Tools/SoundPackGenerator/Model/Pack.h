#pragma once

#include "Model/BigKey.h"
#include "Model/Slot.h"
#include "Model/Stroke.h"

#include <map>
#include <string>
#include <vector>

namespace tocca::soundpack {

/// How loud the two halves of a stroke are, in LU against the standard press of all packs.
struct StrokeLevels {
    double pressLu;
    double releaseLu;
};

using Levels = std::map<Key, StrokeLevels>;

/// The levels of every keyboard switch: big keys a little louder, releases well below presses.
inline const Levels kSwitchLevels{
    {Key::Standard, {0, -6}},
    {Key::Space, {1.5, -4.5}},
    {Key::Enter, {1, -5}},
    {Key::Back, {0.5, -5.5}},
};

/// A stroke that is written out in full.
struct SlotStroke {
    Slot slot;
    Stroke stroke;
};

/// One instrument: its parts, its strokes and the room it stands in.
struct Pack {
    std::string stream; ///< its name in random streams, which are fixed for ever (see RandomStream.h)
    std::string folder;
    std::string title;
    double speedSpread; ///< of the finger, from stroke to stroke
    double roomDb;      ///< level of the diffuse tail
    double earlyDb;     ///< level of desk, case and first reflections, on top of their own
    double highPassHz;
    Levels levels;
    std::vector<Bank> banks;
    std::vector<SlotStroke> strokes;  ///< at least the press and the release of the standard key
    std::vector<BigKey> bigKeys = {}; ///< how to derive the slots that `strokes` does not hold
};

/// The stroke of a slot: the one written out, else the standard key's on a big key, else the standard key's.
TunedStroke strokeOf(const Pack& pack, const Slot& slot);

/// How loud the standard press of every pack is made. Units: LUFS of the loudest 400 ms.
inline constexpr double kStandardPressLufs = -30.0;

/// How loud a slot is made. Units: LUFS of the loudest 400 ms.
double targetLufs(const Pack& pack, const Slot& slot);

} // namespace tocca::soundpack
