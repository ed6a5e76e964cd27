#include "App/LaunchAtLogin.h"
#include "Platform/Memory/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::app {
namespace {

using platform::LoginItemStatus;
using platform::memory::MemoryHost;

TEST(LaunchAtLogin, ShowsTheDesktopsStatusAndOnlyEnabledCounts)
{
    struct Row {
        LoginItemStatus status;
        bool isEnabled;
    };

    for (const Row& row :
         {Row{LoginItemStatus::NotRegistered, false}, Row{LoginItemStatus::Enabled, true},
          Row{LoginItemStatus::RequiresApproval, false}, Row{LoginItemStatus::NotFound, false}}) {
        MemoryHost host;
        host.loginItem().currentStatus = row.status;
        const LaunchAtLogin launch(host);
        EXPECT_FALSE(launch.isEnabled.get()) << "until the main queue has delivered the answer";
        host.settle();
        EXPECT_EQ(launch.isEnabled.get(), row.isEnabled);
    }
}

TEST(LaunchAtLogin, TogglesAndSurvivesRefusals)
{
    MemoryHost host;
    LaunchAtLogin launch(host);
    host.settle();
    launch.toggle();
    EXPECT_TRUE(launch.isEnabled.get());
    EXPECT_EQ(host.loginItem().currentStatus, LoginItemStatus::Enabled);

    host.loginItem().refusal = "Read-only file system";
    launch.toggle();
    EXPECT_TRUE(launch.isEnabled.get());
    EXPECT_THAT(host.standardOutput().lines,
                testing::ElementsAre("LaunchAtLogin toggle error: Read-only file system"));

    host.loginItem().refusal.reset();
    host.loginItem().currentStatus = LoginItemStatus::NotRegistered; // taken back by the person, elsewhere
    launch.checkStatus();
    host.settle();
    EXPECT_FALSE(launch.isEnabled.get());
}

} // namespace
} // namespace tocca::app
