#pragma once

#include "Model/Bank.h"
#include "Model/BigKey.h"
#include "Synthesis/RandomStream.h"

#include <vector>

namespace tocca::soundpack {

/// A damped oscillation. Units: Hz, seconds to -60 dB, amplitude relative to the impulse.
struct Resonance {
    double hz;
    double t60;
    double amplitude;
};

/// The resonances of a bank as one stroke excites them.
///
/// `keyboard` draws what is the same in every stroke of the pack, `stroke` what changes from stroke to stroke.
/// Source: even modal density and loss factor of plates, Cremer and Heckl 1967.
std::vector<Resonance> tune(const Bank& bank, const BankTuning& tuning, RandomStream& keyboard,
                            RandomStream& stroke);

/// Adds to `sound` what the resonances answer to `force`, times `level`. Both at kSampleRate.
void resonate(const std::vector<Resonance>& resonances, const std::vector<double>& force, double level,
              std::vector<double>& sound);

} // namespace tocca::soundpack
