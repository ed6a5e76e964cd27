#include "Synthesis/Render.h"

#include "Model/Decibel.h"
#include "Synthesis/Contacts.h"
#include "Synthesis/Decimator.h"
#include "Synthesis/Filters.h"
#include "Synthesis/RandomStream.h"
#include "Synthesis/Rates.h"
#include "Synthesis/Resonators.h"
#include "Synthesis/Room.h"

#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace tocca::soundpack {

namespace {

using Signal = std::vector<double>;

/// All forces of a stroke at kContactRate: on each bank, and what radiates by the sudden stop itself.
struct Forces {
    explicit Forces(const Pack& pack, std::size_t length)
        : direct(length)
    {
        for (const Bank& bank : pack.banks) {
            onBank.emplace(bank.id, Signal(length));
        }
    }

    std::map<BankId, Signal> onBank;
    Signal direct;
};

void apply(const Impact& impact, double fingerSpeed, RandomStream random, Forces& forces)
{
    const StruckImpact struck = strike(impact, fingerSpeed, random);
    for (const Contact& contact : struck.contacts) {
        const double at = struck.at + contact.delay;
        for (const Drive& drive : impact.drives) {
            addForce(forces.onBank.at(drive.bank), at, contact.impulse * gain(drive.gainDb),
                     contact.duration);
        }
        if (impact.directDb) {
            addForce(forces.direct, at, contact.impulse * gain(*impact.directDb), contact.duration);
        }
    }
    if (!impact.friction) {
        return;
    }
    const double at = struck.at + impact.friction->delayMs * 1e-3;
    const Signal hiss = drawHiss(*impact.friction, random);
    const double level = struck.impulse * gain(impact.friction->levelDb);
    for (const Drive& drive : impact.drives) {
        addFriction(forces.onBank.at(drive.bank), hiss, at, level * gain(drive.gainDb));
    }
}

// Acceleration noise: a small body that stops within a contact radiates by its deceleration, beside what rings.
// Source: Chadwick, Zheng and James 2012.
void addDirect(const Signal& force, Signal& sound)
{
    const Signal pressure = decimate(force);
    double previous = 0;
    for (std::size_t n = 0; n < sound.size(); ++n) {
        sound[n] += pressure[n] - previous;
        previous = pressure[n];
    }
}

void addBank(const Pack& pack, const Bank& bank, const BankTuning& tuning, const std::string& stroke,
             const Signal& force, Signal& sound)
{
    const std::string part = "/bank/" + std::string(streamName(bank.id));
    RandomStream perKeyboard(pack.stream + part + '/' + std::to_string(bank.seed));
    RandomStream perStroke(stroke + part);
    resonate(tune(bank, tuning, perKeyboard, perStroke), decimate(force), gain(tuning.gainDb), sound);
}

} // namespace

std::vector<double> render(const Pack& pack, const Slot& slot, int index)
{
    const std::string name = pack.stream + '/' + streamName(slot) + '/' + std::to_string(index);
    const TunedStroke tuned = strokeOf(pack, slot);
    const auto length = static_cast<std::size_t>(std::round(tuned.stroke.lengthMs * 1e-3 * kSampleRate));

    const double fingerSpeed = 1 + pack.speedSpread * RandomStream(name + "/vel").clippedNormal(1.6);
    Forces forces(pack, length * kOversampling);
    for (std::size_t i = 0; i < tuned.stroke.impacts.size(); ++i) {
        apply(tuned.stroke.impacts[i], fingerSpeed, RandomStream(name + "/ev" + std::to_string(i)), forces);
    }

    Signal dry(length);
    for (const Bank& bank : pack.banks) {
        const auto own = tuned.tuning.find(bank.id);
        const BankTuning tuning = own == tuned.tuning.end() ? BankTuning{} : own->second;
        addBank(pack, bank, tuning, name, forces.onBank.at(bank.id), dry);
    }
    addDirect(forces.direct, dry);
    return butterworthHighPass(pack.highPassHz).apply(inRoom(dry, pack.earlyDb, pack.roomDb));
}

} // namespace tocca::soundpack
