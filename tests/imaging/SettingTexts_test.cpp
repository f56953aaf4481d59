// SPDX-License-Identifier: Apache-2.0
#include "imaging/SettingTexts.h"

#include <gtest/gtest.h>

using namespace imaging;

TEST(SettingTexts, HalftonesAreKnownByKeyword)
{
    EXPECT_EQ(halftoneMethodOf("Binary"), HalftoneMethod::Binary);
    EXPECT_EQ(halftoneMethodOf("Dither"), HalftoneMethod::Dither);
    EXPECT_EQ(halftoneMethodOf("ErrorDiffusion"), HalftoneMethod::ErrorDiffusion);
    EXPECT_FALSE(halftoneMethodOf("binary"));
    EXPECT_FALSE(halftoneMethodOf(""));
}

TEST(SettingTexts, ColourModesAreKnownByKeyword)
{
    EXPECT_EQ(colorModeOf("CvMultiColorMonochrome"), ColorMode::Monochrome);
    EXPECT_EQ(colorModeOf("CvMultiColorBlackRed"), ColorMode::BlackRed);
    EXPECT_FALSE(colorModeOf("BlackRed"));
}

TEST(SettingTexts, LevelsAreWholeNumbersWithinTheirRange)
{
    EXPECT_EQ(levelOf("0"), 0);
    EXPECT_EQ(levelOf("-20"), -20);
    EXPECT_EQ(levelOf("20"), 20);
    for (const char *text : {"", "21", "-21", "+5", "5 ", " 5", "5.0", "x", "99999999999"}) {
        EXPECT_FALSE(levelOf(text)) << text;
    }
}
