#pragma once

#include "Platform/Desktop/LoginItem.h"

#include <gtest/gtest.h>

namespace tocca::platform {

/// What every implementation of `LoginItem` keeps to.
///
/// `Machine` is default constructible, with a session that does not start the program, and hands out `loginItem()`.
template <class Machine>
class LoginItemConformance : public ::testing::Test {
protected:
    Machine machine_;
};

TYPED_TEST_SUITE_P(LoginItemConformance);

TYPED_TEST_P(LoginItemConformance, IsEnabledFromRegisteringToUnregistering)
{
    LoginItem& item = this->machine_.loginItem();
    EXPECT_EQ(item.status(), LoginItemStatus::NotRegistered);
    EXPECT_TRUE(item.unregisterItem()) << "nothing to take back is no error";
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(item.registerItem());
        EXPECT_EQ(item.status(), LoginItemStatus::Enabled);
        EXPECT_TRUE(item.registerItem()) << "once more changes nothing";
        EXPECT_EQ(item.status(), LoginItemStatus::Enabled);
        EXPECT_TRUE(item.unregisterItem());
        EXPECT_EQ(item.status(), LoginItemStatus::NotRegistered);
    }
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemConformance, IsEnabledFromRegisteringToUnregistering);

} // namespace tocca::platform
