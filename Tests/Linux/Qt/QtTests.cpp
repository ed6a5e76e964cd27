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

} // namespace

} // namespace linux

} // namespace tocca::platform
