#include "Instruments/Desktop/Monitors.h"

#include "Instruments/Process.h"
#include "Instruments/Waiting.h"

#include <stdexcept>

namespace tocca::instruments {

namespace {

constexpr const char* kOutput = "screen"; // as Xvfb calls it

bool xrandr(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xrandr");
    Process process(arguments);
    return process.waitForExit(kPatience) == 0;
}

void demand(const std::vector<std::string>& arguments)
{
    if (!xrandr(arguments)) {
        throw std::runtime_error("xrandr " + arguments.front() + " fails");
    }
}

} // namespace

Monitors::Monitors(int width, int height)
    : width_(width)
    , height_(height)
{}

Monitors::~Monitors()
{
    try {
        useOne(width_, height_);
    } catch (const std::runtime_error&) {
        // The server is gone, and its monitors with it.
    }
}

void Monitors::useOne(int width, int height)
{
    removeAll();
    const std::string x = std::to_string(width);
    const std::string y = std::to_string(height);
    const std::string mode = x + "x" + y;
    if (!xrandr({"--output", kOutput, "--mode", mode})) {
        demand({"--newmode", mode, "0", x, x, x, x, y, y, y, y});
        demand({"--addmode", kOutput, mode});
        demand({"--output", kOutput, "--mode", mode});
    }
}

void Monitors::divide(const std::vector<Monitor>& monitors)
{
    removeAll();
    const auto side = [](int pixels) {
        constexpr double kMillimetresPerPixel = 25.4 / 96;
        return std::to_string(pixels) + "/" + std::to_string(static_cast<int>(pixels * kMillimetresPerPixel));
    };
    std::string output = kOutput; // of the first, which takes it away from the display as a whole
    for (const Monitor& each : monitors) {
        const std::string name = (output == kOutput ? "main-" : "other-") + std::to_string(++count_);
        demand({"--setmonitor", (output == kOutput ? "*" : "") + name,
                side(each.width) + "x" + side(each.height) + "+" + std::to_string(each.x) + "+" +
                    std::to_string(each.y),
                output});
        names_.push_back(name);
        output = "none";
    }
}

void Monitors::removeAll()
{
    for (const std::string& name : names_) {
        (void)xrandr({"--delmonitor", name});
    }
    names_.clear();
}

} // namespace tocca::instruments
