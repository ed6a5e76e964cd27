#include "Audio/Conversion/PackConverter.h"

#include "Audio/Conversion/ForeignJson.h"
#include "Audio/Conversion/StrikeSelection.h"
#include "Audio/WavImage.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Platform/SoundDecoder.h"
#include "Support/DisplayText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <span>
#include <sstream>
#include <string_view>
#include <tuple>
#include <utility>

namespace tocca::audio {

namespace {

namespace fs = std::filesystem;

constexpr double kHighestPeak = 0.966; // -0.3 dBFS
constexpr double kShareOfListening = 0.8;
constexpr std::size_t kMostRemarks = 1000;

Error cancelled()
{
    return {"cancelled"};
}

/// Decodes files, and keeps the latest, which may hold many keys.
class Recordings {
public:
    Recordings(const platform::SoundDecoder& decoder, const SourceTree& tree)
        : decoder_(decoder)
        , tree_(tree)
    {}

    const Result<platform::DecodedSound>& find(const std::string& file)
    {
        if (file != file_) {
            file_ = file;
            sound_ = decode(file);
        }
        return sound_;
    }

private:
    [[nodiscard]] Result<platform::DecodedSound> decode(const std::string& file) const
    {
        constexpr std::size_t kLargestFile = std::size_t{64} << 20U;
        constexpr double kLongestSeconds = 300.0;
        const auto bytes = tree_.reader().read(tree_.root() / file, kLargestFile);
        if (!bytes) {
            return bytes.error();
        }
        return decoder_.decode(*bytes.value(), kLongestSeconds);
    }

    const platform::SoundDecoder& decoder_;
    const SourceTree& tree_;
    std::string file_;
    Result<platform::DecodedSound> sound_ = Error{""};
};

/// The takes without those that say the same of a key of the same kind, and without more of a kind than any keyboard has keys.
std::vector<Take> distinct(const std::vector<Take>& takes, std::vector<std::string>& remarks)
{
    constexpr std::size_t kMostOfOneRole = 128;
    std::set<std::tuple<KeyRole, KeyStrokeAction, std::string, double, double>> known;
    std::map<std::pair<KeyRole, KeyStrokeAction>, std::size_t> counts;
    std::vector<Take> rest;
    for (const Take& take : takes) {
        const Slice slice = take.slice.value_or(Slice{-1.0, -1.0});
        if (std::isfinite(slice.startMs) && std::isfinite(slice.lengthMs) &&
            !known.emplace(take.role, take.direction, take.file, slice.startMs, slice.lengthMs).second) {
            remarks.push_back(take.key + ": it sounds the same as another key");
        } else if (++counts[{take.role, take.direction}] > kMostOfOneRole) {
            remarks.push_back(take.key + ": there are too many keys of its kind");
        } else {
            rest.push_back(take);
        }
    }
    return rest;
}

Result<std::vector<HeardTake>> listen(Recordings& recordings, const std::vector<Take>& takes,
                                      std::vector<std::string>& remarks, const ImportWatch& watch)
{
    std::vector<std::size_t> order(takes.size()); // all of one file together, so that it is decoded once
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return takes[a].file < takes[b].file; });
    std::vector<std::pair<std::size_t, HeardTake>> heard;
    for (std::size_t done = 0; done < order.size(); ++done) {
        if (watch.isCancelled()) {
            return cancelled();
        }
        const Take& take = takes[order[done]];
        const auto& sound = recordings.find(take.file);
        auto strike = sound ? findStrike(sound.value(), take.slice) : Result<Strike>(sound.error());
        if (strike) {
            heard.emplace_back(order[done], HeardTake{take, strike.value()});
        } else {
            remarks.push_back(take.key + ": " + strike.error().describe());
        }
        watch.progress(kShareOfListening * static_cast<double>(done + 1) / static_cast<double>(order.size()));
    }
    std::sort(heard.begin(), heard.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<HeardTake> result;
    result.reserve(heard.size());
    for (auto& [index, take] : heard) {
        result.push_back(std::move(take));
    }
    return result;
}

/// The takes with the first of `roles` that has any.
std::vector<HeardTake> ofRole(const std::vector<HeardTake>& heard, KeyStrokeAction direction,
                              std::initializer_list<KeyRole> roles)
{
    std::vector<HeardTake> found;
    for (const KeyRole role : roles) {
        if (!found.empty()) {
            break;
        }
        std::copy_if(heard.begin(), heard.end(), std::back_inserter(found), [&](const HeardTake& take) {
            return take.take.direction == direction && take.take.role == role;
        });
    }
    return found;
}

std::string twoDigits(std::size_t number)
{
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%02zu", number);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string decimal(double value)
{
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.1f", value);
    return {text.data(), static_cast<std::size_t>(length)};
}

double gainFor(const std::vector<ChosenStrike>& chosen)
{
    const SoundSlot reference(KeyStrokeAction::down, SoundSlot::standard);
    std::vector<double> ofReference;
    std::vector<double> ofAll;
    double peak = 0.0;
    for (const ChosenStrike& strike : chosen) {
        ofAll.push_back(strike.strike.lufs);
        if (strike.slot == reference) {
            ofReference.push_back(strike.strike.lufs);
        }
        peak = std::max(peak, strike.strike.peak);
    }
    const double lufs = medianOf(ofReference.empty() ? ofAll : ofReference);
    return std::min(std::pow(10.0, (PackConverter::kTargetLufs - lufs) / 20), kHighestPeak / peak);
}

std::span<const std::byte> bytesOf(std::string_view text)
{
    return std::as_bytes(std::span(text));
}

} // namespace

Result<Conversion> PackConverter::choose(const ConversionPlan& plan, const SourceTree& tree,
                                         const std::string& folderName, const ImportWatch& watch) const
{
    Conversion result{.format = plan.format,
                      .name = displayText(plan.name.empty() ? folderName : plan.name),
                      .chosen = {},
                      .remarks = plan.remarks};
    Recordings recordings(decoder_, tree);
    const auto listened = listen(recordings, distinct(plan.takes, result.remarks), result.remarks, watch);
    if (!listened) {
        return listened.error();
    }

    struct Row {
        SoundSlot::Sound sound;
        std::initializer_list<KeyRole> roles;
        std::size_t most;
    };

    const std::array kRows{
        Row{SoundSlot::standard, {KeyRole::Typing, KeyRole::Other}, kMostStandard},
        Row{SoundSlot::space, {KeyRole::Space}, kMostOther},
        Row{SoundSlot::enter, {KeyRole::Enter, KeyRole::KeypadEnter}, kMostOther},
        Row{SoundSlot::back, {KeyRole::Backspace, KeyRole::Delete}, kMostOther},
    };
    for (const auto direction : {KeyStrokeAction::down, KeyStrokeAction::up}) {
        for (const Row& row : kRows) {
            const SoundSlot slot(direction, row.sound);
            std::size_t number = 0;
            for (auto& heard :
                 alike(ofRole(listened.value(), direction, row.roles), row.most, result.remarks)) {
                result.chosen.push_back(
                    {.take = std::move(heard.take),
                     .strike = heard.strike,
                     .slot = slot,
                     .fileName = std::string(slot.name()) + "_" + twoDigits(++number) + ".wav"});
                result.hasReleases = result.hasReleases || (direction == KeyStrokeAction::up);
            }
        }
    }
    if (result.chosen.empty()) {
        return Error{"“" + folderName + "” holds no sound that can be used" +
                     (result.remarks.empty() ? "" : " (" + result.remarks.front() + ")")};
    }
    result.gain = gainFor(result.chosen);
    return result;
}

Outcome PackConverter::write(const Conversion& conversion, const SourceTree& tree, const fs::path& folder,
                             const ImportWatch& watch) const
{
    Recordings recordings(decoder_, tree);
    bool hasStandardRelease = false;
    std::vector<const ChosenStrike*> order;
    for (const ChosenStrike& chosen : conversion.chosen) {
        order.push_back(&chosen);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto* a, const auto* b) { return a->take.file < b->take.file; });
    std::size_t done = 0;
    for (const ChosenStrike* const chosen : order) {
        if (watch.isCancelled()) {
            return cancelled();
        }
        const auto& sound = recordings.find(chosen->take.file);
        if (!sound) {
            return sound.error();
        }
        const auto samples = finishedStrike(sound.value(), chosen->strike, conversion.gain);
        const auto image = wavImage(samples, static_cast<std::uint16_t>(sound.value().channels.size()),
                                    static_cast<std::uint32_t>(sound.value().sampleRate));
        if (auto written = store_.writeFile(folder / chosen->fileName, image); !written) {
            return written;
        }
        hasStandardRelease =
            hasStandardRelease || chosen->slot == SoundSlot(KeyStrokeAction::up, SoundSlot::standard);
        ++done;
        watch.progress(kShareOfListening + (1.0 - kShareOfListening) * static_cast<double>(done) /
                                               static_cast<double>(order.size()));
    }
    if (!hasStandardRelease) {
        // A key that comes up would sound as if it were pressed again.
        constexpr std::size_t kFrames = 480;
        constexpr std::uint32_t kSampleRate = 48000;
        const auto silence = wavImage(std::vector<std::int16_t>(kFrames), 1, kSampleRate);
        if (auto written = store_.writeFile(folder / "release_standard_none.wav", silence); !written) {
            return written;
        }
    }
    Json::Value manifest(Json::objectValue);
    manifest["name"] = conversion.name;
    manifest["description"] = conversion.description();
    Json::StreamWriterBuilder builder;
    builder["emitUTF8"] = true;
    if (auto written =
            store_.writeFile(folder / "tocca_meta.json", bytesOf(Json::writeString(builder, manifest)));
        !written) {
        return written;
    }
    return store_.writeFile(folder / "import-report.txt", bytesOf(conversion.report()));
}

std::string Conversion::description() const
{
    constexpr std::array<std::string_view, 4> kNames{"standard", "space", "enter", "backspace"};
    std::array<std::size_t, SoundSlot::kCount> counts{};
    for (const ChosenStrike& strike : chosen) {
        ++counts.at(strike.slot.index());
    }
    std::ostringstream text;
    text << "Imported from " << format << " •";
    std::size_t releases = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (i >= kNames.size()) {
            releases += counts.at(i);
        } else if (counts.at(i) > 0) {
            text << ' ' << counts.at(i) << ' ' << kNames.at(i) << ',';
        }
    }
    if (releases > 0) {
        text << ' ' << releases << " releases";
    } else {
        text << " no releases";
    }
    return text.str();
}

std::string Conversion::report() const
{
    std::ostringstream text;
    text << displayText(name) << "\nRead as: " << format << "\nAll sounds changed by "
         << decimal(20 * std::log10(gain)) << " dB, for the loudness of the built-in packs.\n\nUsed\n";
    for (const ChosenStrike& strike : chosen) {
        text << "  " << strike.fileName << "  " << displayText(strike.take.key) << ", "
             << displayText(strike.take.file);
        if (strike.take.slice) {
            text << " at " << decimal(strike.take.slice->startMs) << " ms";
        }
        text << ", " << decimal(strike.strike.seconds * 1e3) << " ms, " << decimal(strike.strike.lufs)
             << " LUFS\n";
    }
    if (!remarks.empty()) {
        text << "\nNot used\n";
        for (std::size_t i = 0; i < std::min(remarks.size(), kMostRemarks); ++i) {
            text << "  " << displayText(remarks[i]) << '\n';
        }
        if (remarks.size() > kMostRemarks) {
            text << "  and " << remarks.size() - kMostRemarks << " more\n";
        }
    }
    if (!hasReleases) {
        text << "\nThe pack has no sounds for keys that come up, so they are silent.\n";
    }
    text << "\nEverything that came is in the folder “original”.\n";
    return text.str();
}

} // namespace tocca::audio
