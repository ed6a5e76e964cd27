#include "Instruments/Now.h"
#include "Instruments/Process.h"
#include "Instruments/XScreen.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace tocca;
using namespace std::chrono_literals;

constexpr const char* kListens = "tap thread running permanently!";
constexpr const char* kTitle = "Tocca Studio";
constexpr std::chrono::seconds kDeadline{30};
constexpr int kRuns = 11;
constexpr int kMilliseconds = 1000;

/// Seconds from the start of the process.
struct Times {
    double listening = 0;
    double painted = 0;
};

/// Whether anything is drawn in the window; an empty one has a single colour.
bool isPainted(const instruments::XScreen& screen, int process)
{
    for (const auto& window : screen.windowsOf(process)) {
        if (window.name != kTitle) {
            continue;
        }
        // The brand's amber, at the top left of the sidebar.
        const auto picture =
            screen.picture(window.x, window.y, std::min(window.width, 240), std::min(window.height, 110));
        return std::any_of(picture.pixels.begin(), picture.pixels.end(),
                           [](const instruments::Pixel& pixel) { return pixel.red > pixel.blue + 100; });
    }
    return false;
}

Times startOnce(const std::string& path, const instruments::XScreen& screen)
{
    const double began = instruments::now();
    instruments::Process program({path});
    std::optional<double> listening;
    std::optional<double> painted;
    while (!listening || !painted) {
        if (!listening && program.waitForLine(kListens, 1ms)) {
            listening = instruments::now();
        }
        if (!painted && isPainted(screen, program.id())) {
            painted = instruments::now();
        }
        if (instruments::now() - began > std::chrono::duration<double>(kDeadline).count()) {
            throw std::runtime_error("the program did not come up:\n" + program.output());
        }
        std::this_thread::sleep_for(1ms);
    }
    program.signal(SIGTERM);
    (void)program.waitForExit(kDeadline);
    return {*listening - began, *painted - began};
}

/// Lets the kernel forget what it has read of the disk; false without the right to.
bool emptyTheDiskCache()
{
    ::sync();
    const int file = ::open("/proc/sys/vm/drop_caches", O_WRONLY | O_CLOEXEC);
    const bool isDone = file >= 0 && ::write(file, "3", 1) == 1;
    if (file >= 0) {
        ::close(file);
    }
    return isDone;
}

void print(const char* name, double listening, double painted)
{
    std::printf("%-18s  listening %5.0f ms   window painted %5.0f ms\n", name, listening * kMilliseconds,
                painted * kMilliseconds);
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: start_time PROGRAM    (inside a private session)\n", stderr);
        return 2;
    }
    try {
        const instruments::XScreen screen;
        if (emptyTheDiskCache()) {
            const Times cold = startOnce(argv[1], screen);
            print("cold", cold.listening, cold.painted);
        } else {
            std::puts("cold: not measured, since emptying the disk cache is not allowed here");
        }
        std::vector<double> listening;
        std::vector<double> painted;
        for (int run = 0; run < kRuns; ++run) {
            const Times warm = startOnce(argv[1], screen);
            listening.push_back(warm.listening);
            painted.push_back(warm.painted);
        }
        print("warm, median of 11", median(listening), median(painted));
        print("warm, slowest", *std::max_element(listening.begin(), listening.end()),
              *std::max_element(painted.begin(), painted.end()));
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "start_time: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
