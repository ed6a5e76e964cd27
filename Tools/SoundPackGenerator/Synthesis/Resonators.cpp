#include "Synthesis/Resonators.h"

#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace tocca::soundpack {

namespace {

constexpr double kMs = 1e-3;

double levelAt(const std::vector<LevelAt>& curve, double hz)
{
    const auto above = std::ranges::upper_bound(curve, hz, {}, &LevelAt::hz);
    if (above == curve.begin()) {
        return curve.front().db;
    }
    if (above == curve.end()) {
        return curve.back().db;
    }
    const LevelAt& low = *(above - 1);
    const double part = std::log2(hz / low.hz) / std::log2(above->hz / low.hz);
    return low.db + part * (above->db - low.db);
}

Resonance tuneMode(const Mode& mode, double scale, RandomStream& keyboard, RandomStream& stroke)
{
    const double hz = mode.hz * scale * (1 + 0.003 * stroke.clippedNormal());
    const double t60 = mode.t60Ms * kMs * (1 + 0.08 * stroke.clippedNormal());
    const double amplitude = gain(mode.gainDb + stroke.clippedNormal());
    return {hz, t60, amplitude * keyboard.sign()};
}

// A stroke hits the plate at its own spot, so part of each amplitude is the keyboard's and part the stroke's. No mode
// vanishes altogether: the microphone does not sit on its nodes as well.
double strikeShape(double mix, RandomStream& keyboard, RandomStream& stroke)
{
    const double same = keyboard.clippedNormal();
    const double other = stroke.clippedNormal();
    const double weight = same * std::sqrt(1 - mix) + other * std::sqrt(mix);
    return std::copysign(0.4 + 0.6 * std::abs(weight), weight);
}

void tuneField(const ModeField& field, double scale, RandomStream& keyboard, RandomStream& stroke,
               std::vector<Resonance>& resonances)
{
    for (double f = field.lowHz; f < field.highHz;) {
        const double hz = f * scale + 0.8 * field.spacingHz * (keyboard.unit() - 0.5);
        const double shape = strikeShape(field.strokeMix, keyboard, stroke);
        const double loss = 1 / (field.t60Ms * kMs) + field.lossFactor * hz / 2.2;
        const double t60 = std::exp2(field.t60Spread * keyboard.clippedNormal(1.5)) / loss;
        resonances.push_back({hz, t60, shape * gain(levelAt(field.envelope, std::max(hz, 20.0)))});
        f += field.spacingHz * std::clamp(f / field.denserBelowHz, 0.35, 1.0);
    }
}

// Each sample of a resonator waits for the one before it; a few side by side keep the processor busy.
constexpr std::size_t kLanes = 4;

class Lanes {
public:
    Lanes(std::span<const Resonance> resonances, double level)
    {
        for (std::size_t i = 0; i < resonances.size(); ++i) {
            const Resonance& resonance = resonances[i];
            const double radius = std::exp(-kSixtyDb / (resonance.t60 * kSampleRate));
            const double angle = 2 * std::numbers::pi * resonance.hz / kSampleRate;
            last_.at(i) = 2 * radius * std::cos(angle);
            secondLast_.at(i) = -radius * radius;
            input_.at(i) = level * resonance.amplitude * radius * std::sin(angle);
        }
    }

    void addResponse(const std::vector<double>& force, std::vector<double>& sound) const
    {
        std::array<double, kLanes> last{};
        std::array<double, kLanes> secondLast{};
        for (std::size_t n = 1; n < sound.size(); ++n) {
            std::array<double, kLanes> now{};
            for (std::size_t i = 0; i < kLanes; ++i) {
                now[i] = last_[i] * last[i] + secondLast_[i] * secondLast[i] + input_[i] * force[n - 1];
            }
            sound[n] += (now[0] + now[1]) + (now[2] + now[3]);
            secondLast = last;
            last = now;
        }
    }

private:
    std::array<double, kLanes> last_{};
    std::array<double, kLanes> secondLast_{};
    std::array<double, kLanes> input_{};
};

} // namespace

std::vector<Resonance> tune(const Bank& bank, const BankTuning& tuning, RandomStream& keyboard,
                            RandomStream& stroke)
{
    std::vector<Resonance> resonances;
    const double temper = 1 + 0.006 * stroke.clippedNormal();
    for (const Mode& mode : bank.modes) {
        resonances.push_back(tuneMode(mode, tuning.scale * temper, keyboard, stroke));
    }
    if (bank.field) {
        tuneField(*bank.field, tuning.scale, keyboard, stroke, resonances);
    }
    std::erase_if(resonances, [](const Resonance& r) { return r.hz <= 25 || r.hz >= 0.46 * kSampleRate; });
    return resonances;
}

void resonate(const std::vector<Resonance>& resonances, const std::vector<double>& force, double level,
              std::vector<double>& sound)
{
    for (std::size_t first = 0; first < resonances.size(); first += kLanes) {
        const std::size_t count = std::min(kLanes, resonances.size() - first);
        const Lanes lanes(std::span<const Resonance>(resonances).subspan(first, count), level);
        lanes.addResponse(force, sound);
    }
}

} // namespace tocca::soundpack
