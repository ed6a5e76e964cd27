#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/LinuxMainQueue.h"
#include "Platform/Linux/System/LinuxTimers.h"
#include "Platform/Linux/Toolkit/LinuxWorkspace.h"
#include "Platform/Linux/Toolkit/ToolkitLoop.h"
#include "Platform/MainQueueAndTimersConformance.h"

#include "Linux/TemporaryDirectory.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <cstdlib>
#include <string>

namespace tocca::platform {

namespace {

/// The toolkit's application object, of which a process has one.
QCoreApplication& application()
{
    static int argumentCount = 1;
    static char name[] = "tests";      // NOLINT(modernize-avoid-c-arrays)
    static char* arguments[] = {name}; // NOLINT(modernize-avoid-c-arrays)
    static QCoreApplication application(argumentCount, arguments);
    return application;
}

/// The Linux main queue and timers on the toolkit's loop.
class ToolkitMachine {
public:
    MainQueue& mainQueue() { return queue_; }

    Timers& timers() { return timers_; }

    Clock& clock() { return clock_; }

    template <class Predicate>
    bool runUntil(Predicate predicate)
    {
        constexpr double kDeadline = 20.0; // seconds
        const double end = clock_.now() + kDeadline;
        const auto beat = timers_.scheduleRepeating(0.001, [] {});
        while (!predicate()) {
            if (clock_.now() > end) {
                return false;
            }
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

private:
    QCoreApplication& application_ = application();
    linux::LinuxClock clock_;
    linux::LinuxTimers timers_;
    linux::LinuxMainQueue queue_{timers_};
    linux::ToolkitLoop loop_{queue_, timers_};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Toolkit, MainQueueAndTimersConformance, ToolkitMachine);

namespace linux {

namespace {

TEST(ToolkitLoop, ServesQueueAndTimersInsideALoopThatATaskRuns)
{
    ToolkitMachine machine;
    std::string order;
    QEventLoop nested;
    machine.mainQueue().post([&] {
        order += '(';
        machine.mainQueue().postAfter(0.002, [&] {
            order += 't';
            nested.quit();
        });
        nested.exec();
        order += ')';
    });
    machine.mainQueue().post([&] { order += 'a'; });
    machine.mainQueue().postRealtime([&] { order += 'r'; });
    ASSERT_TRUE(machine.runUntil([&] { return order.ends_with(')'); }));
    EXPECT_EQ(order, "r(at)");
}

TEST(LinuxWorkspace, HandsAUrlToTheDesktopsOpenerAsOneArgument)
{
    const TemporaryDirectory directory;
    const auto opener = directory.path() / "xdg-open";
    const auto record = directory.path() / "record";
    TemporaryDirectory::write(opener, "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" > " + record.string() +
                                          ".part\n/bin/mv " + record.string() + ".part " + record.string() +
                                          "\n");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    ::setenv("PATH", directory.path().c_str(), 1);

    LinuxWorkspace workspace;
    EXPECT_TRUE(workspace.openUrl("https://example.org/a?b=$(id)&c=%20;d"));
    ToolkitMachine machine;
    ASSERT_TRUE(machine.runUntil([&] { return std::filesystem::exists(record); }));
    std::ifstream input(record);
    std::string text;
    std::getline(input, text);
    EXPECT_EQ(text, "1|https://example.org/a?b=$(id)&c=%20;d|");

    EXPECT_FALSE(workspace.openUrl("--help"));
    EXPECT_FALSE(workspace.openUrl(""));
    std::filesystem::remove(opener);
    EXPECT_FALSE(workspace.openUrl("https://example.org/")) << "there is nothing to open it with";
    ::setenv("PATH", path.c_str(), 1);
}

} // namespace

} // namespace linux

} // namespace tocca::platform
