// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsKeys.h"

#include <limits>

#include <gtest/gtest.h>

using namespace graphics;

namespace {

constexpr qint32 kSmallest = std::numeric_limits<qint32>::min();
constexpr qint32 kLargest = std::numeric_limits<qint32>::max();

TEST(GraphicsKeys, LevelsStandForPlacesFromTheTopDown)
{
    EXPECT_EQ(indexOfLevel(20), 0);
    EXPECT_EQ(indexOfLevel(0), 20);
    EXPECT_EQ(indexOfLevel(-20), 40);
    EXPECT_EQ(levelOfIndex(0), 20);
    EXPECT_EQ(levelOfIndex(20), 0);
    EXPECT_EQ(levelOfIndex(40), -20);
}

TEST(GraphicsKeys, LevelsAboveTwentyFoldBack)
{
    EXPECT_EQ(indexOfLevel(21), 1);
    EXPECT_EQ(indexOfLevel(25), 5);
    EXPECT_EQ(indexOfLevel(60), 40);
}

TEST(GraphicsKeys, ArithmeticWrapsAtTheEndsOf32Bits)
{
    EXPECT_EQ(rawIndexOfLevel(kLargest), 2147483627);
    EXPECT_EQ(rawIndexOfLevel(kSmallest), 2147483628);
    EXPECT_EQ(indexOfLevel(kSmallest), 2147483628);
    EXPECT_EQ(rawIndexOfLevel(-2147483628), kSmallest);
    EXPECT_EQ(indexOfLevel(-2147483628), kSmallest);
    EXPECT_EQ(indexOfLevel(-2147483627), kLargest);
    EXPECT_EQ(absoluteValue(kSmallest), kSmallest);
}

TEST(GraphicsKeys, PlaceThatWasNotFoundShows21)
{
    EXPECT_EQ(levelOfIndex(std::numeric_limits<qint64>::max()), 21);
}

TEST(GraphicsKeys, MasksHaveTheirDecimalValues)
{
    EXPECT_EQ(kHalftoneItem, 32);
    EXPECT_EQ(kBrightnessItem, 64);
    EXPECT_EQ(kContrastItem, 128);
    EXPECT_EQ(kBiDiPrintItem, 32768);
    EXPECT_EQ(kColorItem, 327680);
    EXPECT_EQ(kRedLevelItem, 6291456);
}

} // namespace
