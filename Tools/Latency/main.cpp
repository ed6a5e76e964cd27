#include "Instruments/Process.h"
#include "Measurement.h"
#include "Platform/Linux/Qt/RendererChoice.h"
#include "Subject.h"
#include "Support/ThreadRole.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <vector>

Q_IMPORT_QML_PLUGIN(Tocca_UIPlugin)

namespace {

using namespace tocca;

constexpr int kStrokes = 500;
constexpr int kBusyLoops = 4;
constexpr instruments::Rhythm kTyping{.shortest = 0.06, .longest = 0.14};
// With and without overlays by turns, since a computer is not equally quick all the time.
constexpr int kTurns = 5;
constexpr int kStrokesATurn = 200;
constexpr instruments::Rhythm kFifteenASecond{.shortest = 0.0567, .longest = 0.0767};

std::vector<std::unique_ptr<instruments::Process>> startBusyLoops()
{
    std::vector<std::unique_ptr<instruments::Process>> loops;
    loops.reserve(kBusyLoops);
    for (int i = 0; i < kBusyLoops; ++i) {
        loops.push_back(std::make_unique<instruments::Process>(
            std::vector<std::string>{"sh", "-c", "while :; do :; done"}));
    }
    return loops;
}

std::vector<latency::Figures> compareOverlays(latency::Subject& subject)
{
    latency::Figures without;
    latency::Figures with;
    for (int turn = 0; turn < kTurns; ++turn) {
        without += latency::measure(
            subject, {.name = "15 strokes a second", .strokes = kStrokesATurn, .rhythm = kFifteenASecond});
        with += latency::measure(subject, {.name = "the same, both overlays",
                                           .strokes = kStrokesATurn,
                                           .rhythm = kFifteenASecond,
                                           .hasOverlays = true});
    }
    return {without, with};
}

/// Measures in all conditions and prints the table; returns the exit status.
int measureAll(latency::Subject& subject)
{
    try {
        const instruments::Process compositor({"picom", "--backend", "xrender", "--config", "/dev/null"});
        std::vector<latency::Figures> all = compareOverlays(subject);
        all.push_back(latency::measure(subject, {.name = "idle", .strokes = kStrokes, .rhythm = kTyping}));
        const auto loops = startBusyLoops();
        all.push_back(
            latency::measure(subject, {.name = "four busy loops", .strokes = kStrokes, .rhythm = kTyping}));
        std::fputs(latency::tableOf(all).c_str(), stdout);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "latency: %s\n", error.what());
        return EXIT_FAILURE;
    }
}

} // namespace

int main(int argc, char** argv)
{
    setThreadRole(ThreadRole::Main);
    const QGuiApplication application(argc, argv);
    platform::linux::chooseRenderer();
    latency::Subject subject;
    std::jthread measuring([&subject] {
        const int status = measureAll(subject);
        subject.post([status] { QGuiApplication::exit(status); });
    });
    return QGuiApplication::exec();
}
