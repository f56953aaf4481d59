// SPDX-License-Identifier: Apache-2.0
#include "ppd/Units.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace {

TEST(Units, RoundingTakesHalvesAwayFromZero)
{
    EXPECT_EQ(RoundDouble(2.5), 3);
    EXPECT_EQ(RoundDouble(-2.5), -3);
    EXPECT_EQ(RoundDouble(0.5), 1);
    EXPECT_EQ(RoundDouble(-0.5), -1);
    EXPECT_EQ(RoundDouble(0.0), 0);
}

TEST(Units, RoundingTakesTheNearestIntegerOtherwise)
{
    EXPECT_EQ(RoundDouble(1.4999), 1);
    EXPECT_EQ(RoundDouble(-1.4999), -1);
    EXPECT_EQ(RoundDouble(1.75), 2);
    EXPECT_EQ(RoundDouble(0.49999999999999994), 0) << "adding a half first would give 1";
    EXPECT_EQ(RoundDouble(4503599627370497.5), 4503599627370498);
    EXPECT_EQ(RoundDouble(9007199254740993.0), 9007199254740992) << "the nearest double";
}

TEST(Units, RoundingOutsideOf64BitsStaysAtTheLimits)
{
    using Limits = std::numeric_limits<qint64>;
    EXPECT_EQ(RoundDouble(9223372036854775808.0), Limits::max());
    EXPECT_EQ(RoundDouble(-9223372036854775808.0), Limits::min());
    EXPECT_EQ(RoundDouble(1e300), Limits::max());
    EXPECT_EQ(RoundDouble(-1e300), Limits::min());
    EXPECT_EQ(RoundDouble(HUGE_VAL), Limits::max());
    EXPECT_EQ(RoundDouble(std::nan("")), 0);
}

TEST(Units, InchesAndMillimetresUseTheRoundedFactor)
{
    EXPECT_DOUBLE_EQ(MiriToInch(100.0), 3.93701);
    EXPECT_NEAR(InchToMiri(1.0), 25.39998628, 1e-8);
    EXPECT_NE(InchToMiri(1.0), 25.4);
    EXPECT_DOUBLE_EQ(InchToMiri(MiriToInch(62.0)), 62.0);
    EXPECT_EQ(MiriToInch(0.0), 0.0);
    EXPECT_DOUBLE_EQ(MiriToInch(-10.0), -0.393701);
}

} // namespace
