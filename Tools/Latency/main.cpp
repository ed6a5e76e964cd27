#include "Measurement.h"
#include "Subject.h"
#include "Support/ThreadRole.h"
#include "TestKit/Process.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tocca;

constexpr int kStrokes = 500;
constexpr int kBusyLoops = 4;

std::vector<std::unique_ptr<testkit::Process>> startBusyLoops()
{
    std::vector<std::unique_ptr<testkit::Process>> loops;
    loops.reserve(kBusyLoops);
    for (int i = 0; i < kBusyLoops; ++i) {
        loops.push_back(
            std::make_unique<testkit::Process>(std::vector<std::string>{"sh", "-c", "while :; do :; done"}));
    }
    return loops;
}

/// Measures in both conditions and prints the table; returns the exit status.
int measureAll(latency::Subject& subject)
{
    try {
        std::vector<latency::Figures> all;
        all.push_back(latency::measure(subject, "idle", kStrokes));
        const auto loops = startBusyLoops();
        all.push_back(latency::measure(subject, "four busy loops", kStrokes));
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
    QCoreApplication application(argc, argv);
    latency::Subject subject;
    std::jthread measuring([&subject] {
        const int status = measureAll(subject);
        subject.post([status] { QCoreApplication::exit(status); });
    });
    return QCoreApplication::exec();
}
