// SPDX-License-Identifier: Apache-2.0
#include "platform/Beep.h"

#include <gtest/gtest.h>

namespace {

TEST(Beep, AnotherSoundStandsInForTheAlertUntilItIsTakenBack)
{
    int sounded = 0;
    platform::setBeep([&sounded] { ++sounded; });
    platform::beep();
    platform::beep();
    EXPECT_EQ(sounded, 2);
    platform::setBeep({});
    platform::beep();
    EXPECT_EQ(sounded, 2);
}

} // namespace
