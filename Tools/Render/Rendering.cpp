#include "Render/Rendering.h"

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Memory/MemoryHost.h"
#include "Player/AudioOutput.h"
#include "Player/MixerAudioPlayers.h"
#include "Player/Mixing/Mixer.h"
#include "Render/SeededRandom.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <variant>

#include <sndfile.h>

namespace tocca::render {

namespace {

constexpr std::size_t kBlock = 64; // frames

/// An output that is asked for its blocks by hand.
class OfflineOutput : public player::AudioOutput {
public:
    void start(player::RenderSource& /*source*/) override {}

    [[nodiscard]] double sampleRate() const noexcept override { return kSampleRate; }

    void noteActivity() noexcept override {}
};

/// Where the built-in packs are; the user's own folders stay out of it.
class ResourcesAlone : public platform::Directories {
public:
    [[nodiscard]] std::optional<std::filesystem::path> resources() const override
    {
        return real_.resources();
    }

    [[nodiscard]] std::filesystem::path currentWorkingDirectory() const override
    {
        return real_.currentWorkingDirectory();
    }

    [[nodiscard]] std::optional<std::filesystem::path> applicationSupport() const override
    {
        return std::nullopt;
    }

private:
    platform::linux::LinuxDirectories real_;
};

/// A computer in virtual time with the real player and the real disk.
class Studio {
public:
    explicit Studio(std::uint64_t seed)
        : random_(seed)
    {}

    [[nodiscard]] platform::memory::MemoryHost& memory() noexcept { return memory_; }

    [[nodiscard]] player::Mixer& mixer() noexcept { return mixer_; }

    [[nodiscard]] audio::AudioEngine& engine() noexcept { return engine_; }

    /// Moves time on to `time`.
    void advanceTo(double time) { memory_.advance(std::max(0.0, time - memory_.clock().now())); }

private:
    platform::memory::MemoryHost memory_;
    platform::linux::LinuxFiles files_;
    ResourcesAlone directories_;
    SeededRandom random_;
    player::Mixer mixer_{memory_.clock()};
    OfflineOutput output_;
    player::MixerAudioPlayers players_{output_, mixer_};
    platform::Host host_{memory_.mainQueue(),
                         memory_.serialQueues(),
                         memory_.threads(),
                         memory_.timers(),
                         memory_.clock(),
                         memory_.eventTaps(),
                         memory_.localMonitors(),
                         memory_.trustQuery(),
                         players_,
                         memory_.audioDevices(),
                         memory_.haptics(),
                         memory_.workspace(),
                         memory_.loginItem(),
                         directories_,
                         files_,
                         memory_.fileStore(),
                         memory_.archives(),
                         memory_.soundDecoder(),
                         random_,
                         memory_.standardOutput(),
                         memory_.application(),
                         memory_.screens(),
                         memory_.windows(),
                         memory_.panels(),
                         memory_.popovers(),
                         memory_.statusBar(),
                         memory_.mainMenu(),
                         memory_.openPanels(),
                         memory_.userDefaults()};
    audio::SoundPackLoader loader_{host_};
    audio::AudioEngine engine_{host_, loader_, [] { return false; }};
};

/// Errors: there is no such pack.
Outcome select(audio::AudioEngine& engine, const std::string& pack)
{
    for (const audio::SwitchType type : audio::SwitchType::allCases) {
        if (type.folderName() == pack) {
            engine.currentSwitchType.set(type);
            return std::monostate{};
        }
    }
    if (!std::filesystem::is_directory(pack)) {
        return Error{"“" + pack + "” is neither a built-in pack nor a folder"};
    }
    engine.selectedCustomPack.set(audio::SoundPackInfo{.id = "custom_" + pack,
                                                       .name = pack,
                                                       .description = {},
                                                       .folderURL = std::filesystem::absolute(pack)});
    return std::monostate{};
}

} // namespace

Result<std::vector<float>> rendered(std::span<const ScoredStroke> strokes, const Sound& sound)
{
    constexpr double kTailSeconds = 1.0;
    Studio studio(sound.seed);
    if (const auto selected = select(studio.engine(), sound.pack); !selected) {
        return selected.error();
    }
    studio.engine().isHapticsEnabled.set(false);
    studio.engine().playUpstroke.set(sound.playsReleases);
    studio.memory().settle();

    const double start = studio.memory().clock().now();
    const double length = (strokes.empty() ? 0.0 : strokes.back().time) + kTailSeconds;
    const std::size_t blocks = static_cast<std::size_t>(std::ceil(length * kSampleRate)) / kBlock + 1;
    std::vector<float> stereo(blocks * kBlock * 2);
    auto next = strokes.begin();
    for (std::size_t block = 0; block < blocks; ++block) {
        // A stroke is placed one quantum behind its time: with the cycle that begins when its block ends, exactly at it.
        const double end = start + static_cast<double>((block + 1) * kBlock) / kSampleRate;
        for (; next != strokes.end() && start + next->time < end; ++next) {
            studio.advanceTo(start + next->time);
            const ThreadRoleScope capture(ThreadRole::Capture);
            studio.engine().playKey(next->keyCode, next->action, start + next->time);
        }
        studio.advanceTo(end);
        studio.memory().settle();
        const ThreadRoleScope render(ThreadRole::Render);
        studio.mixer().render(std::span(stereo).subspan(block * kBlock * 2, kBlock * 2),
                              {.beginsAt = end, .sampleRate = kSampleRate, .quantum = kBlock});
    }
    if (const auto& lines = studio.memory().standardOutput().lines; !lines.empty()) {
        return Error{lines.front()};
    }
    return stereo;
}

Outcome writeSound(std::span<const float> stereo, const std::filesystem::path& file)
{
    constexpr int kChannels = 2;
    constexpr float kFullScale = 32767.0F;
    SF_INFO info{};
    info.samplerate = kSampleRate;
    info.channels = kChannels;
    info.format = (file.extension() == ".flac" ? SF_FORMAT_FLAC : SF_FORMAT_WAV) | SF_FORMAT_PCM_16;
    SNDFILE* const opened = sf_open(file.c_str(), SFM_WRITE, &info);
    if (opened == nullptr) {
        return Error{file.string() + ": " + sf_strerror(nullptr)};
    }
    std::vector<short> samples(stereo.size());
    std::transform(stereo.begin(), stereo.end(), samples.begin(), [](float sample) {
        return static_cast<short>(std::lround(std::clamp(sample, -1.0F, 1.0F) * kFullScale));
    });
    const auto count = static_cast<sf_count_t>(samples.size());
    const bool isWritten = sf_write_short(opened, samples.data(), count) == count;
    return sf_close(opened) == 0 && isWritten ? Outcome(std::monostate{})
                                              : Error{file.string() + ": cannot be written"};
}

} // namespace tocca::render
