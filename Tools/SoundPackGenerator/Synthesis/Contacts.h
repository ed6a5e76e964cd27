#pragma once

#include "Model/Stroke.h"
#include "Synthesis/RandomStream.h"

#include <vector>

namespace tocca::soundpack {

/// One touch of two surfaces.
///
/// Units: seconds after the impact; the impulse is relative to the standard key's main impact.
struct Contact {
    double delay;
    double impulse;
    double duration;
};

/// An impact as it happens in one stroke: drawn time and force, and every touch that belongs to it.
struct StruckImpact {
    double at; ///< seconds after the start of the sound
    double impulse;
    std::vector<Contact> contacts;
};

/// Draws one stroke's impact with its rebounds, its rattle and the roughness of the surfaces.
///
/// `fingerSpeed` is the stroke's, 1 = normal.
/// Source: contact time falls with speed^(1/5), force rises with speed^(6/5): Hertz 1882.
StruckImpact strike(const Impact& impact, double fingerSpeed, RandomStream& random);

/// Adds the force of a contact that begins at `at` seconds to a force signal at kContactRate.
///
/// Compression is steeper than restitution, because the contact itself damps: Hunt and Crossley 1975.
void addForce(std::vector<double>& force, double at, double impulse, double duration);

/// Adds the hiss of sliding surfaces to a force signal at kContactRate, as shaped noise.
void addFriction(std::vector<double>& force, const std::vector<double>& hiss, double at, double level);

/// Draws the hiss that goes with one impact: noise below a cut-off, swelling and fading.
std::vector<double> drawHiss(const Friction& friction, RandomStream& random);

} // namespace tocca::soundpack
