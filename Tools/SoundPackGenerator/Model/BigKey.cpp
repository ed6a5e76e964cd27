#include "Model/BigKey.h"

#include "Model/Decibel.h"

#include <algorithm>

namespace tocca::soundpack {

namespace {

// The release swings the far side loose rather than landing it: it comes later, and the wire ticks less.
constexpr double kReleaseFarSideDelay = 1.3;
constexpr double kReleaseStabiliserDb = -3;
constexpr double kStabiliserOnPlateDb = -10;

Impact farSide(const BigKey& key, Action action, const Impact& main)
{
    Impact far = main;
    far.role = Role::Other;
    far.atMs += key.farSideMs * (action == Action::Release ? kReleaseFarSideDelay : 1);
    far.jitter = 0.04;
    far.speed *= gain(key.farSideDb);
    far.contactUs *= 1.15;
    far.friction.reset();
    return far;
}

Impact stabiliser(const BigKey& key, Action action, const Impact& main)
{
    const double releaseDb = action == Action::Release ? kReleaseStabiliserDb : 0;
    return {
        .atMs = main.atMs + 0.25,
        .jitter = 0.03,
        .contactUs = 75,
        .bounce = {.restitution = 0.45, .firstGapMs = 1.1},
        .rattle = {.count = key.ticks, .spanMs = key.tickSpanMs, .levelDb = -5},
        .drives = {{BankId::Stab, key.stabiliserDb + releaseDb},
                   {BankId::Plate, key.stabiliserDb + kStabiliserOnPlateDb}},
    };
}

} // namespace

TunedStroke onBigKey(const BigKey& key, Action action, const Stroke& letterKey)
{
    TunedStroke big{
        .stroke = letterKey,
        .tuning =
            {
                {BankId::Cap, {.scale = key.capScale, .gainDb = key.capDb}},
                {BankId::Deep, {.scale = key.deepScale, .gainDb = key.deepDb}},
                {BankId::Plate, {.scale = key.plateScale}},
                {BankId::House, {.scale = key.houseScale}},
            },
    };
    auto& impacts = big.stroke.impacts;
    big.stroke.lengthMs += key.extraMs;
    for (Impact& impact : impacts) {
        if (impact.role == Role::Bump) {
            impact.speed *= key.bumpSpeed;
        }
    }
    const auto main = std::ranges::find(impacts, Role::Main, &Impact::role);
    if (main == impacts.end()) {
        return big;
    }
    main->speed *= key.speed;
    const Impact struck = *main;
    impacts.push_back(farSide(key, action, struck));
    impacts.push_back(stabiliser(key, action, struck));
    return big;
}

} // namespace tocca::soundpack
