#include "EndToEnd/InterfaceAtWork.h"
#include "Instruments/EncodedSound.h"
#include "Instruments/Likeness.h"
#include "Instruments/Tray.h"
#include "Instruments/XWindow.h"
#include "Instruments/ZipFile.h"
#include "Support/Loudness.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>
#include <thread>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;

constexpr int kSampleRate = 48000;

/// A pack that is one recording of keys of Holy Panda, two a second, four times as soft, with a list of their times.
struct SlicedPack {
    SlicedPack()
    {
        constexpr std::array<std::pair<int, const char*>, 4> kKeys{{{KEY_G, "press_standard"},
                                                                    {KEY_SPACE, "press_space"},
                                                                    {KEY_ENTER, "press_enter"},
                                                                    {KEY_BACKSPACE, "press_back"}}};
        constexpr int kPauseMs = 500;
        std::vector<float> samples(static_cast<std::size_t>(kSampleRate) * 60);
        std::string defines;
        for (std::size_t i = 0; i < kKeys.size(); ++i) {
            const auto recording = std::find_if(panda.begin(), panda.end(), [&](const auto& each) {
                return each.slot == kKeys.at(i).second;
            });
            const auto at = static_cast<std::size_t>(kPauseMs) * i * kSampleRate / 1000;
            for (std::size_t n = 0; n < recording->samples.size(); ++n) {
                samples[at + n] = recording->samples[n] / 4;
            }
            keys.push_back({.slot = recording->slot, .samples = recording->samples});
            defines += "\"" + std::to_string(kKeys.at(i).first) + "\": [" + std::to_string(kPauseMs * i) +
                       ", 400],\n";
        }
        const auto bytes = instruments::encoded(instruments::Encoding::OggVorbis, samples, 1, kSampleRate);
        sound.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        config =
            R"({"name": "Sliced Board", "key_define_type": "single", "sound": "sound.ogg", "defines": {)" +
            defines + "}}";
    }

    const std::vector<instruments::PackRecording> panda = instruments::readPack(HOLY_PANDA_DIRECTORY);
    std::vector<instruments::PackRecording> keys;
    std::string config;
    std::string sound;
};

void write(const std::filesystem::path& path, const std::string& text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

class ForeignPacks : public InterfaceAtWork {
protected:
    /// Drags `path` from a file manager onto the popover.
    void dropOntoPopover(const std::filesystem::path& path)
    {
        const instruments::Process fileManager({OTHER_PROGRAM, "20", "20", "120", "90", path.string()});
        ASSERT_TRUE(becomesTrue([&] { return !screen.windowsOf(fileManager.id()).empty(); }));
        const auto from = screen.windowsOf(fileManager.id()).front();

        const auto icon = tray.icon();
        ASSERT_TRUE(icon) << program.output();
        clickAt(icon->first, icon->second);
        ASSERT_TRUE(becomesTrue([this] { return popover().has_value(); })) << program.output();
        const auto to = *popover();
        hands.movePointer(from.x + 30, from.y + 30);
        hands.pressButton(1);
        for (int step = 0; step <= 20; ++step) {
            hands.movePointer(from.x + 30 + (to.x + 180 - from.x - 30) * step / 20,
                              from.y + 30 + (to.y + 280 - from.y - 30) * step / 20);
            std::this_thread::sleep_for(20ms); // a hand is no faster
        }
        hands.releaseButton(1);
        const std::string said = "Imported '" + path.stem().string() + "'!";
        ASSERT_TRUE(becomesTrue([&] {
            const auto controls = reader.controls();
            return std::any_of(controls.begin(), controls.end(),
                               [&](const auto& control) { return control.name == said; });
        })) << program.output();
        chord({KEY_ESC});
        ASSERT_TRUE(becomesTrue([this] { return !popover(); }));
    }

    [[nodiscard]] std::optional<instruments::VisibleWindow> popover()
    {
        const auto windows = screen.windowsOf(program.id());
        const auto found = std::find_if(windows.begin(), windows.end(),
                                        [](const auto& window) { return window.width == 360; });
        return found != windows.end() ? std::optional(*found) : std::nullopt;
    }

    struct Heard {
        std::string slot;
        double correlation = 0.0;
        double lufs = 0.0;
    };

    /// What each key of the sliced pack sounds like, in their order; of several times the one that was recorded best.
    std::vector<Heard> hearKeys(const std::vector<instruments::PackRecording>& candidates)
    {
        constexpr std::array<std::uint16_t, 4> kKeys{KEY_G, KEY_SPACE, KEY_ENTER, KEY_BACKSPACE};
        constexpr int kTimes = 4;
        std::vector<Heard> best(kKeys.size());
        for (int time = 0; time < kTimes; ++time) {
            const auto hearing = instruments::typeAndHear(
                hands, *recorder, kKeys, {.shortest = 0.5, .longest = 0.6}, random, kPatience);
            const auto recording = recorder->recording();
            for (std::size_t i = 0; i < kKeys.size(); ++i) {
                if (!hearing.ofStroke[i]) {
                    continue;
                }
                const double began = hearing.ofStroke[i]->time;
                const auto likeness =
                    instruments::mostLike(recording.between(began - 0.003, began + 0.030), candidates);
                if (likeness.correlation > best[i].correlation) {
                    best[i] = {likeness.slot, likeness.correlation,
                               loudnessOf(recording.between(began, began + 0.4))};
                }
            }
        }
        return best;
    }

    static double loudnessOf(std::span<const float> stereo)
    {
        std::array<std::vector<double>, 2> channels;
        for (std::size_t i = 0; i + 1 < stereo.size(); i += 2) {
            channels[0].push_back(stereo[i]);
            channels[1].push_back(stereo[i + 1]);
        }
        return loudness(channels, kSampleRate);
    }

    const SlicedPack pack;
    const std::filesystem::path home = std::getenv("HOME");
    instruments::Tray tray;
};

TEST_F(ForeignPacks, SoundKeyByKeyWhetherTheyCameInAFolderOrInAnArchive)
{
    write(home / "Sliced Folder/config.json", pack.config);
    write(home / "Sliced Folder/sound.ogg", pack.sound);
    const std::string inArchive = "Sliced Archive";
    write(home / (inArchive + ".zip"),
          instruments::zipFile({{.path = "inner/config.json", .bytes = pack.config},
                                {.path = "inner/sound.ogg", .bytes = pack.sound},
                                {.path = "__MACOSX/inner/._sound.ogg", .bytes = "x"}}));
    dropOntoPopover(home / "Sliced Folder");
    dropOntoPopover(home / (inArchive + ".zip"));
    const auto library = home / ".local/share/Tocca/CustomSoundPacks";
    EXPECT_TRUE(std::filesystem::exists(library / "Sliced Folder/import-report.txt"));

    listen();
    instruments::XWindow elsewhere(instruments::XWindow::Traits{"elsewhere", "Elsewhere"});
    elsewhere.activate();
    ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() != "Tocca Studio"; }));
    const auto builtIn = hearKeys(pack.panda);

    // Both have the same name, and their rows the same sound; what is in the folder is chosen by taking the other one away.
    for (const char* const gone : {"Sliced Folder", "Sliced Archive"}) {
        SCOPED_TRACE(gone);
        std::filesystem::rename(library / gone, home / "kept");
        clickAt(tray.icon()->first, tray.icon()->second); // which reads the folder anew
        ASSERT_TRUE(becomesTrue([this] { return popover().has_value(); }));
        chord({KEY_ESC});
        ASSERT_TRUE(becomesTrue([this] { return !popover(); }));
        click("Audition Sliced Board");
        std::this_thread::sleep_for(1s); // beyond what was auditioned
        elsewhere.activate();
        ASSERT_TRUE(becomesTrue([this] { return screen.activeWindow() != "Tocca Studio"; }));

        const auto heard = hearKeys(pack.keys);
        for (std::size_t i = 0; i < heard.size(); ++i) {
            EXPECT_EQ(heard[i].slot, pack.keys[i].slot);
            EXPECT_GT(heard[i].correlation, 0.95) << pack.keys[i].slot << ": lossy, but no other sound";
            EXPECT_NEAR(heard[i].lufs, builtIn[i].lufs, 3.0) << pack.keys[i].slot;
        }
        std::filesystem::rename(home / "kept", library / gone);
    }
}

} // namespace
} // namespace tocca::endtoend
