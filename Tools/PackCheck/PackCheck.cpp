#include "PackCheck/PackCheck.h"

#include "Audio/Conversion/PackIntake.h"
#include "Audio/Conversion/Strike.h"
#include "Audio/SoundSlot.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Linux/System/Files/ZipArchives.h"
#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/FileSoundDecoder.h"
#include "Player/Decoding/SoundFormat.h"
#include "Support/DisplayText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iomanip>
#include <span>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <vector>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

namespace tocca::packcheck {

namespace fs = std::filesystem;

namespace {

/// A folder of its own for as long as it takes.
class Workplace {
public:
    Workplace()
    {
        std::string name = (fs::temp_directory_path() / "tocca-pack-check.XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder can be made");
        }
        path_ = name;
    }

    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    ~Workplace()
    {
        std::error_code error;
        fs::remove_all(path_, error);
    }

    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

std::string formatOf(std::span<const std::byte> bytes)
{
    const auto format = player::soundFormatOf(bytes);
    if (!format) {
        return "unknown";
    }
    switch (*format) {
    case player::SoundFormat::Wav:
        return "WAV";
    case player::SoundFormat::Mp3:
        return "MP3";
    case player::SoundFormat::OggVorbis:
        break;
    }
    return "Ogg Vorbis";
}

/// A file that is played as it is: the player's own decoder has the last word on it.
std::string lineOf(std::span<const std::byte> bytes, Findings& findings)
{
    const auto clip = player::decode(bytes);
    if (!clip) {
        ++findings.problems;
        return "cannot be played: " + clip.error().describe();
    }
    const player::PcmClip& sound = clip.value();
    platform::DecodedSound decoded{.channels = {}, .sampleRate = sound.sampleRate()};
    for (std::size_t i = 0; i < sound.channelCount(); ++i) {
        decoded.channels.emplace_back(sound.channel(i).begin(), sound.channel(i).end());
    }
    std::ostringstream line;
    const double seconds = static_cast<double>(sound.frameCount()) / sound.sampleRate();
    line << std::fixed << std::setprecision(0) << formatOf(bytes) << ", " << sound.sampleRate() << " Hz, "
         << (sound.channelCount() == 1 ? "mono" : "stereo") << ", " << seconds * 1e3 << " ms";
    const auto strike = audio::findStrike(decoded, std::nullopt);
    if (!strike) {
        line << "; " << strike.error().describe();
        return line.str();
    }
    line << std::setprecision(1) << ", " << strike.value().lufs << " LUFS, peak "
         << 20 * std::log10(strike.value().peak) << " dBFS, onset after " << strike.value().silenceMs
         << " ms";
    return line.str();
}

std::string describe(const audio::SourceTree& tree, const platform::Files& files, Findings& findings)
{
    std::ostringstream text;
    std::array<std::size_t, audio::SoundSlot::kCount> counts{};
    for (const audio::SourceTree::Entry& entry : tree.entries()) {
        const bool isAtTop = entry.path.find('/') == std::string::npos;
        const std::string name = displayText(entry.path);
        if (!isAtTop) {
            continue;
        }
        const auto slot = audio::SoundSlot::fromFileName(entry.path);
        if (entry.kind == platform::FileKind::Directory) {
            text << "  " << name << "/  ignored: only the pack's own folder is read\n";
        } else if (!slot) {
            const bool isManifest = entry.path == "tocca_meta.json" || entry.path == "config.json";
            text << "  " << name
                 << (isManifest ? "  name and description\n"
                                : "  ignored: its name does not end in .wav, .mp3 or .ogg\n");
        } else if (const auto bytes = files.read(tree.root() / entry.path, std::size_t{32} << 20U)) {
            const int before = findings.problems;
            text << "  " << name << "  " << slot->name() << "; " << lineOf(*bytes.value(), findings) << '\n';
            counts.at(slot->index()) += findings.problems == before ? 1U : 0U;
        } else {
            ++findings.problems;
            text << "  " << name << "  cannot be read: " << displayText(bytes.error().describe()) << '\n';
        }
    }
    findings.canBeHeard = counts[0] > 0;
    text << "Pressed keys: " << counts[0] << " standard, " << counts[1] << " space, " << counts[2]
         << " enter, " << counts[3] << " backspace\nReleased keys: " << counts[4] << " standard, "
         << counts[5] << " space, " << counts[6] << " enter, " << counts[7] << " backspace\n";
    return text.str();
}

} // namespace

Result<Findings> check(const fs::path& pack)
{
    const Workplace workplace;
    const platform::linux::LinuxFiles files;
    platform::linux::LinuxFileStore store(platform::linux::HomeTrash(workplace.path() / "trash"));
    const platform::linux::ZipArchives archives;
    const player::FileSoundDecoder decoder;
    audio::PackIntake intake(files, store, archives, decoder);
    const auto prepared = intake.prepare(pack, workplace.path() / "packs", {});
    if (!prepared) {
        return prepared.error();
    }
    const auto tree = audio::SourceTree::read(files, store, prepared.value().path, [] { return false; });
    if (!tree) {
        return Error{"it is a file, neither a folder nor an archive"};
    }
    Findings findings;
    const std::string name = displayText(prepared.value().path.stem().string());
    const auto report = files.read(prepared.value().path / "import-report.txt", std::size_t{1} << 20U);
    const bool isConverted = report && files.exists(prepared.value().path / "original");
    if (isConverted) {
        const auto& bytes = *report.value();
        findings.text = "A foreign pack, which is converted when it is imported.\n\n" +
                        std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()) +
                        "\nWhat comes of it, as “" + name + "”:\n";
    } else {
        findings.text = "Imported as it is, as “" + name + "”:\n";
    }
    findings.text += describe(tree.value(), files, findings);
    return findings;
}

} // namespace tocca::packcheck
