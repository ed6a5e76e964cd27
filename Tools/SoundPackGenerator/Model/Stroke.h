#pragma once

#include "Model/Bank.h"

#include <optional>
#include <vector>

namespace tocca::soundpack {

/// What an impact is to the key, for the rules that turn a letter key into a big one (BigKey.h).
enum class Role { Other, Bump, Main };

/// Rebounds after an impact. No restitution, no rebounds.
struct Bounce {
    double restitution = 0;
    double firstGapMs = 0;
};

/// Small impacts of loose parts after the big one.
struct Rattle {
    int count = 0;
    double spanMs = 0;
    double levelDb = 0;
};

/// The hiss of two surfaces that slide.
struct Friction {
    double delayMs;
    double lengthMs;
    double levelDb;
    double cutoffHz;
};

/// How hard an impact sets one bank ringing.
struct Drive {
    BankId bank;
    double gainDb;
};

/// One impact of a stroke with all that follows from it.
struct Impact {
    Role role = Role::Other;
    double atMs;
    double jitter = 0.12; ///< spread of `atMs` from stroke to stroke, as a fraction of it
    double speed = 1;     ///< 1 = a letter key at normal typing
    double contactUs;     ///< how long the surfaces touch at speed 1; longer is duller
    Bounce bounce = {};
    Rattle rattle = {};
    std::optional<Friction> friction = {};
    std::vector<Drive> drives;
    std::optional<double> directDb = {}; ///< sound of the sudden stop itself; none when absent
};

/// A press or a release from the first contact to silence.
struct Stroke {
    double lengthMs; ///< what is rendered; the file is cut where it has become silent
    double silenceDb = -72;
    double fadeMs = 18;
    std::vector<Impact> impacts;
};

} // namespace tocca::soundpack
