#include "Instruments/Now.h"
#include "Instruments/Process.h"
#include "Instruments/Rehearsal.h"
#include "Sentence.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <linux/input-event-codes.h>
#include <stdexcept>
#include <string>

namespace {

using namespace tocca;

constexpr const char* kSentence = "the quick brown fox jumps over the lazy dog";
constexpr const char* kListens = "tap thread running permanently!";
constexpr instruments::Rhythm kLeisurely{.shortest = 0.07, .longest = 0.19};
constexpr std::chrono::seconds kDeadline{20};
constexpr std::chrono::seconds kCapacity{120};
constexpr double kLeadIn = 0.5; // seconds of the recording before the first key

void require(bool condition, const std::string& complaint)
{
    if (!condition) {
        throw std::runtime_error(complaint);
    }
}

/// Types the sentence to `program`, keeps what was heard, and tells whether that was every key once.
bool typeTheSentence(instruments::Process& program, const std::filesystem::path& wav)
{
    require(program.waitForLine(kListens, kDeadline), "the program does not listen:\n" + program.output());
    instruments::XTestKeyboard keyboard;
    const instruments::MonitorRecorder recorder(kCapacity, kDeadline);
    require(instruments::becomesAudible(keyboard, recorder, kDeadline),
            "no key is heard:\n" + program.output());

    std::vector<std::uint16_t> keys = demonstration::keysFor(kSentence);
    keys.push_back(KEY_ENTER);
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same typing each time
    const double began = instruments::now();
    const instruments::Hearing hearing =
        instruments::typeAndHear(keyboard, recorder, keys, kLeisurely, random, kDeadline);
    const instruments::Recording recording = recorder.recording();
    require(instruments::writeWav(recording.between(began - kLeadIn, instruments::now()),
                                  recording.sampleRate, wav),
            "cannot write " + wav.string());

    std::printf("%s: %zu keys typed, %zu heard, %zu other sounds\n", wav.c_str(), keys.size(),
                hearing.heard(), hearing.others.size());
    return hearing.heard() == keys.size() && hearing.others.empty();
}

void takeScreenshot(const std::filesystem::path& png)
{
    instruments::Process import({"import", "-window", "root", png.string()});
    require(import.waitForExit(kDeadline) == 0, "no screenshot: " + import.output());
    std::printf("%s: the screen meanwhile\n", png.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: demonstration PROGRAM OUTPUT_DIRECTORY    (inside a private session)\n", stderr);
        return 2;
    }
    try {
        const std::filesystem::path directory(argv[2]);
        std::filesystem::create_directories(directory);
        instruments::Process program({argv[1]});
        const bool isEachHeardOnce = typeTheSentence(program, directory / "typing.wav");
        takeScreenshot(directory / "screen.png");
        program.signal(SIGTERM);
        require(program.waitForExit(kDeadline) == 0, "the program did not end well:\n" + program.output());
        return isEachHeardOnce ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "demonstration: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
