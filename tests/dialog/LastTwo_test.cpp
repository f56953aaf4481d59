// SPDX-License-Identifier: Apache-2.0
#include "dialog/LastTwo.h"

#include <gtest/gtest.h>

#include <string>

using Kept = dialog::LastTwo<int, std::string>;

TEST(LastTwo, KeepsTheTwoThatWereAskedForLast)
{
    Kept kept;
    EXPECT_EQ(kept.find(1), nullptr);
    kept.put(1, "one");
    kept.put(2, "two");
    ASSERT_NE(kept.find(1), nullptr);
    EXPECT_EQ(*kept.find(1), "one");
    kept.put(3, "three");
    EXPECT_EQ(kept.find(2), nullptr);
    ASSERT_NE(kept.find(1), nullptr);
    ASSERT_NE(kept.find(3), nullptr);
    EXPECT_EQ(*kept.find(3), "three");
}
