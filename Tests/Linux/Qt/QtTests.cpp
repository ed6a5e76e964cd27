#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"
#include "Platform/MainQueueAndTimersConformance.h"

#include "Instruments/TemporaryDirectory.h"
#include "Linux/Qt/QtMachine.h"

#include <QEventLoop>

#include <cstdlib>
#include <string>

namespace tocca::platform {

namespace {

using instruments::TemporaryDirectory;

using linux::QtMachine;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, MainQueueAndTimersConformance, QtMachine);

namespace linux {

namespace {

TEST(QtLoop, ServesQueueAndTimersInsideALoopThatATaskRuns)
{
    QtMachine machine;
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

    QtMachine machine;
    SecureInput secureInput;
    LinuxWorkspace workspace(secureInput, machine.timers());
    EXPECT_TRUE(workspace.openUrl("https://example.org/a?b=$(id)&c=%20;d"));
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
