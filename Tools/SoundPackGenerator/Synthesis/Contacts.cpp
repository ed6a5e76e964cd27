#include "Synthesis/Contacts.h"

#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tocca::soundpack {

namespace {

constexpr double kMs = 1e-3;
constexpr double kUs = 1e-6;

void addRebounds(StruckImpact& struck, const Bounce& bounce, double duration, RandomStream& random)
{
    double gap = bounce.firstGapMs * kMs * (1 + 0.15 * random.clippedNormal(1.6));
    double impulse = struck.impulse;
    double delay = 0;
    for (int rebound = 1; rebound <= 4 && bounce.restitution > 0; ++rebound) {
        impulse *= std::pow(bounce.restitution * (1 + 0.2 * random.clippedNormal(1.5)), 1.2);
        delay += gap;
        gap *= std::max(0.25, 1.25 * bounce.restitution);
        if (impulse < 0.02 * struck.impulse) {
            break;
        }
        const double longer = std::pow(1.08, rebound) * (1 + 0.1 * random.symmetric());
        struck.contacts.push_back({delay, impulse, duration * longer});
    }
}

void addRattle(StruckImpact& struck, const Rattle& rattle, double duration, RandomStream& random)
{
    if (rattle.count == 0) {
        return;
    }
    // Not std::round: half cases do occur here, and the sounds depend on which way they go.
    const double count = std::floor(rattle.count * (1 + 0.2 * random.clippedNormal(1.5)) + 0.5);
    const double span = rattle.spanMs * kMs;
    for (int hit = 0; hit < static_cast<int>(count); ++hit) {
        const double delay = -std::log(1 - 0.95 * random.unit()) * span * 0.4;
        const double levelDb = rattle.levelDb - 8 * delay / span + 4 * random.clippedNormal(1.5);
        const double direction = random.unit() < 0.6 ? 1 : -1;
        const double shorter = 0.45 + 0.5 * random.unit();
        struck.contacts.push_back({delay, direction * struck.impulse * gain(levelDb), duration * shorter});
    }
}

void addRoughness(StruckImpact& struck, RandomStream& random)
{
    constexpr int kAsperities = 3;
    std::vector<Contact> rough;
    rough.reserve(struck.contacts.size() * (1 + kAsperities));
    for (const Contact& contact : struck.contacts) {
        rough.push_back(contact);
        for (int i = 0; i < kAsperities; ++i) {
            const double delay = contact.delay + 0.6 * contact.duration * random.unit();
            const double impulse = contact.impulse * (0.05 + 0.08 * random.unit());
            const double duration = contact.duration * (0.14 + 0.18 * random.unit());
            rough.push_back({delay, impulse, duration});
        }
    }
    struck.contacts = std::move(rough);
}

} // namespace

StruckImpact strike(const Impact& impact, double fingerSpeed, RandomStream& random)
{
    StruckImpact struck{};
    struck.at = 0.3 * kMs + (impact.atMs + impact.jitter * impact.atMs * random.clippedNormal(1.5)) * kMs;
    const double speed = impact.speed * fingerSpeed * (1 + 0.05 * random.clippedNormal(1.6));
    struck.impulse = std::pow(speed, 1.2);
    const double duration =
        impact.contactUs * kUs * std::pow(speed, -0.2) * (1 + 0.06 * random.clippedNormal(1.6));
    struck.contacts.push_back({0, struck.impulse, duration});
    addRebounds(struck, impact.bounce, duration, random);
    addRattle(struck, impact.rattle, duration, random);
    addRoughness(struck, random);
    return struck;
}

void addForce(std::vector<double>& force, double at, double impulse, double duration)
{
    constexpr double kSkew = 0.85;
    constexpr double kIntegral = 0.5711; // of sin(pi x^0.85)^1.5 over 0…1
    const double height = impulse / (kIntegral * duration * kContactRate);
    const auto first = static_cast<std::ptrdiff_t>(std::ceil(at * kContactRate));
    const auto last = static_cast<std::ptrdiff_t>(std::floor((at + duration) * kContactRate));
    const auto size = static_cast<std::ptrdiff_t>(force.size());
    for (auto n = std::max<std::ptrdiff_t>(first, 0); n <= std::min(last, size - 1); ++n) {
        const double x = (static_cast<double>(n) / kContactRate - at) / duration;
        if (x > 0 && x < 1) {
            const double shape = std::sin(std::numbers::pi * std::pow(x, kSkew));
            force[static_cast<std::size_t>(n)] += height * std::pow(shape, 1.5);
        }
    }
}

std::vector<double> drawHiss(const Friction& friction, RandomStream& random)
{
    constexpr std::size_t kHold = 4;
    constexpr double kSwell = 0.3;
    const auto length = static_cast<std::size_t>(friction.lengthMs * kMs * kContactRate);
    const double step = 1 - std::exp(-2 * std::numbers::pi * friction.cutoffHz / kContactRate);
    std::vector<double> hiss(length);
    double held = 0;
    double smoothed = 0;
    for (std::size_t i = 0; i < length; ++i) {
        if (i % kHold == 0) {
            held = random.symmetric();
        }
        smoothed += step * (held - smoothed);
        const double x = static_cast<double>(i) / static_cast<double>(length);
        const double envelope = x < kSwell
                                    ? 0.5 - 0.5 * std::cos(std::numbers::pi * x / kSwell)
                                    : 0.5 + 0.5 * std::cos(std::numbers::pi * (x - kSwell) / (1 - kSwell));
        hiss[i] = envelope * smoothed;
    }
    return hiss;
}

void addFriction(std::vector<double>& force, const std::vector<double>& hiss, double at, double level)
{
    const auto first = static_cast<std::size_t>(at * kContactRate);
    for (std::size_t i = 0; i < hiss.size() && first + i < force.size(); ++i) {
        force[first + i] += level * hiss[i];
    }
}

} // namespace tocca::soundpack
