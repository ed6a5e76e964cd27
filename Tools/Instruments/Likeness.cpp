#include "Instruments/Likeness.h"

#include <cmath>
#include <sndfile.h>

namespace tocca::instruments {

namespace {

constexpr double kSampleRate = 48000.0;
constexpr std::size_t kLags = 192;     // 4 ms
constexpr std::size_t kCompared = 960; // 20 ms
constexpr double kSlowest = 0.94;
constexpr double kRateStep = 0.002;
constexpr int kRates = 51;

std::vector<float> readMono(const std::filesystem::path& path)
{
    SF_INFO info{};
    SNDFILE* const file = sf_open(path.c_str(), SFM_READ, &info);
    std::vector<float> samples;
    if (file != nullptr && info.channels == 1 && info.samplerate == static_cast<int>(kSampleRate)) {
        samples.resize(static_cast<std::size_t>(info.frames));
        samples.resize(static_cast<std::size_t>(sf_readf_float(file, samples.data(), info.frames)));
    }
    sf_close(file);
    return samples;
}

std::vector<float> atRate(const std::vector<float>& samples, double rate)
{
    std::vector<float> result(kCompared, 0.0F);
    for (std::size_t i = 0; i < kCompared; ++i) {
        const double position = static_cast<double>(i) * rate;
        const auto before = static_cast<std::size_t>(position);
        if (before + 1 < samples.size()) {
            const auto fraction = static_cast<float>(position - static_cast<double>(before));
            result[i] = samples[before] + fraction * (samples[before + 1] - samples[before]);
        }
    }
    return result;
}

double correlation(std::span<const float> a, std::span<const float> b)
{
    float product = 0.0F;
    float energyOfA = 0.0F;
    float energyOfB = 0.0F;
    for (std::size_t i = 0; i < b.size(); ++i) {
        product += a[i] * b[i];
        energyOfA += a[i] * a[i];
        energyOfB += b[i] * b[i];
    }
    const float energy = energyOfA * energyOfB;
    return energy > 0.0F ? product / std::sqrt(energy) : 0.0F;
}

} // namespace

std::vector<PackRecording> readPack(const std::filesystem::path& directory)
{
    std::vector<PackRecording> pack;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(directory, error)) {
        const std::string stem = entry.path().stem().string();
        if (stem.starts_with("press_")) {
            pack.push_back({.slot = stem.substr(0, stem.rfind('_')), .samples = readMono(entry.path())});
        }
    }
    return pack;
}

Likeness mostLike(std::span<const float> sound, const std::vector<PackRecording>& pack)
{
    std::vector<float> mono;
    for (std::size_t i = 0; i + 1 < sound.size(); i += 2) {
        mono.push_back(sound[i] + sound[i + 1]);
    }
    Likeness most;
    for (const PackRecording& recording : pack) {
        for (int step = 0; step < kRates; ++step) {
            const double rate = kSlowest + step * kRateStep;
            const std::vector<float> played = atRate(recording.samples, rate);
            for (std::size_t lag = 0; lag < kLags && lag + kCompared <= mono.size(); ++lag) {
                const double value = correlation(std::span(mono).subspan(lag), played);
                if (value > most.correlation) {
                    most = {.slot = recording.slot, .correlation = value, .rate = rate};
                }
            }
        }
    }
    return most;
}

} // namespace tocca::instruments
