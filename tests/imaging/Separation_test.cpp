// SPDX-License-Identifier: Apache-2.0
#include "imaging/Separation.h"

#include "Pages.h"
#include "imaging/Grey.h"
#include "imaging/Tone.h"

#include <algorithm>
#include <cstdlib>

using namespace imaging;

namespace {

Shares sharesAt(int red, int green, int blue, int level)
{
    return sharesOf(unsigned(red), unsigned(green), unsigned(blue), redBorder(level));
}

/// 17 steps a colour, 4913 of them, black, white and all pure colours among them.
template <typename Work> void forColors(Work work)
{
    const auto byte = [](int step) { return std::min(step * 16, 255); };
    for (int red = 0; red <= 16; ++red) {
        for (int green = 0; green <= 16; ++green) {
            for (int blue = 0; blue <= 16; ++blue) {
                work(byte(red), byte(green), byte(blue));
            }
        }
    }
}

TEST(Grey, IsTheLumaOfTelevision)
{
    forColors([](int red, int green, int blue) {
        const double luma = 0.299 * red + 0.587 * green + 0.114 * blue;
        ASSERT_NEAR(greyOf(unsigned(red), unsigned(green), unsigned(blue)), luma, 1.2);
    });
}

TEST(Grey, OfEqualPartsIsTheSame)
{
    for (unsigned value = 0; value < 256; ++value) {
        EXPECT_EQ(greyOf(value, value, value), value);
    }
}

TEST(Separation, PureRedIsRedAndPureBlackBlack)
{
    for (int level = -19; level <= 20; ++level) {
        EXPECT_EQ(sharesAt(255, 0, 0, level).red, 255) << level;
        EXPECT_EQ(sharesAt(0, 0, 0, level).black(), 255) << level;
        EXPECT_EQ(sharesAt(255, 255, 255, level).paper, 255) << level;
    }
}

TEST(Separation, TheLowestLevelLeavesNoRed)
{
    forColors([](int red, int green, int blue) {
        ASSERT_EQ(sharesAt(red, green, blue, -20).red, 0) << red << ' ' << green << ' ' << blue;
    });
}

TEST(Separation, NeutralColorsHaveNoRedAtAnyLevel)
{
    for (int level = -20; level <= 20; ++level) {
        for (int value = 0; value < 256; ++value) {
            const Shares shares = sharesAt(value, value, value, level);
            ASSERT_EQ(shares.red, 0) << value << " at " << level;
            ASSERT_EQ(shares.paper, value) << value << " at " << level;
        }
    }
}

TEST(Separation, ADarkColorWithASlightTintHasNoRedButALightOneHas)
{
    EXPECT_EQ(sharesAt(255, 250, 250, 0).red, 5);
    EXPECT_EQ(sharesAt(255, 250, 250, 0).black(), 0);
    EXPECT_EQ(sharesAt(140, 125, 128, 20).red, 0);
    EXPECT_GT(sharesAt(141, 125, 125, 20).red, 0);
}

TEST(Separation, AHigherLevelNeverHasLessRedAndNeverTouchesThePaper)
{
    forColors([](int red, int green, int blue) {
        Shares before = sharesAt(red, green, blue, -20);
        for (int level = -19; level <= 20; ++level) {
            const Shares shares = sharesAt(red, green, blue, level);
            ASSERT_GE(shares.red, before.red)
                << red << ' ' << green << ' ' << blue << " at " << level;
            ASSERT_EQ(shares.paper, before.paper);
            before = shares;
        }
    });
}

TEST(Separation, TheThreeSharesMakeTheWhole)
{
    for (const int level : {-20, -13, -1, 0, 1, 8, 20}) {
        forColors([level](int red, int green, int blue) {
            const Shares shares = sharesAt(red, green, blue, level);
            ASSERT_LE(int(shares.paper) + int(shares.red), 255)
                << red << ' ' << green << ' ' << blue << " at " << level;
        });
    }
}

TEST(Separation, TheSharesAreAsDarkAsTheColorAtLevelZero)
{
    forColors([](int red, int green, int blue) {
        const Shares shares = sharesAt(red, green, blue, 0);
        const double grey = double(shares.paper) + 0.299 * double(shares.red);
        ASSERT_NEAR(grey, 0.299 * red + 0.587 * green + 0.114 * blue, 2.0);
    });
}

TEST(Separation, WhatPaperBlackAndRedCanMixIsMixedExactly)
{
    // A mixture of the three has equal green and blue, which is the paper; black is what red lacks.
    for (int paper = 0; paper <= 255; paper += 15) {
        for (int red = 0; red + paper <= 255; red += 15) {
            const Shares shares = sharesAt(red + paper, paper, paper, 0);
            const int tinted = std::max(red - (255 - red - paper) / 8, 0);
            ASSERT_EQ(shares.red, tinted);
            ASSERT_NEAR(shares.paper, paper + 0.3 * (red - tinted), 1.0);
        }
    }
}

TEST(Separation, HigherLevelsTakeInMoreOfWhatIsReddish)
{
    int before = -1;
    for (const int level : {-20, -10, 0, 10, 20}) {
        int redder = 0;
        forColors([&](int red, int green, int blue) {
            const Shares shares = sharesAt(red, green, blue, level);
            redder += shares.red > shares.black() ? 1 : 0;
        });
        EXPECT_GT(redder, before) << level;
        before = redder;
    }
}

TEST(Separation, ALevelOutOfRangeIsTheNearestOne)
{
    EXPECT_EQ(sharesAt(200, 40, 30, 900).red, sharesAt(200, 40, 30, 20).red);
    EXPECT_EQ(sharesAt(200, 40, 30, -900).red, 0);
}

class ColorRowsPath : public testing::TestWithParam<ProcessorPath>
{ };

TEST_P(ColorRowsPath, GivesTheSharesOfEachTonedPixelAtEveryWidth)
{
    std::mt19937 random(31);
    for (std::size_t width = 0; width <= 67; ++width) {
        const int level = int(random() % 41) - 20;
        const ColorControls tones = toneFilter(int(random() % 41) - 20, int(random() % 41) - 20);
        const Bytes rgb = randomBytes(&random, width * 3);
        Bytes paper(width);
        Bytes red(width);
        Separation(tones, level).apply(rgb.data(), width, paper.data(), red.data(), GetParam());
        for (std::size_t x = 0; x < width; ++x) {
            const ToneTable &table = tones.table();
            const Shares shares = sharesOf(table[rgb[x * 3]], table[rgb[x * 3 + 1]],
                                           table[rgb[x * 3 + 2]], redBorder(level));
            ASSERT_EQ(paper[x], shares.paper) << x << " of " << width << " at " << level;
            ASSERT_EQ(red[x], shares.red) << x << " of " << width << " at " << level;
        }
    }
}

TEST_P(ColorRowsPath, SeparatesEveryColorAtEveryLevelAlike)
{
    Bytes rgb;
    forColors([&rgb](int red, int green, int blue) {
        for (const int byte : {red, green, blue}) {
            rgb.push_back(std::uint8_t(byte));
        }
    });
    const std::size_t width = rgb.size() / 3;
    Bytes paper(width);
    Bytes red(width);
    for (int level = -20; level <= 20; ++level) {
        const ColorControls tones = toneFilter(0, 0);
        Separation(tones, level).apply(rgb.data(), width, paper.data(), red.data(), GetParam());
        for (std::size_t x = 0; x < width; ++x) {
            const Shares shares = sharesAt(rgb[x * 3], rgb[x * 3 + 1], rgb[x * 3 + 2], level);
            ASSERT_EQ(paper[x], shares.paper);
            ASSERT_EQ(red[x], shares.red);
        }
    }
}

TEST_P(ColorRowsPath, GivesTheGreyOfEachTonedPixelAtEveryPairOfLevels)
{
    std::mt19937 random(32);
    const std::size_t width = 83;
    Bytes grey(width);
    for (int brightness = -20; brightness <= 20; ++brightness) {
        for (int contrast = -20; contrast <= 20; ++contrast) {
            const ColorControls tones = toneFilter(brightness, contrast);
            const ToneTable &table = tones.table();
            const Bytes rgb = randomBytes(&random, width * 3);
            GreyRows(InputFormat::Rgb24, tones).apply(rgb.data(), width, grey.data(), GetParam());
            for (std::size_t x = 0; x < width; ++x) {
                ASSERT_EQ(grey[x],
                          greyOf(table[rgb[x * 3]], table[rgb[x * 3 + 1]], table[rgb[x * 3 + 2]]));
            }
            GreyRows(InputFormat::Gray8, tones).apply(rgb.data(), width, grey.data(), GetParam());
            for (std::size_t x = 0; x < width; ++x) {
                ASSERT_EQ(grey[x], table[rgb[x]]);
            }
        }
    }
}

std::string nameOf(const testing::TestParamInfo<ProcessorPath> &path)
{
    return testing::PrintToString(path.param);
}

INSTANTIATE_TEST_SUITE_P(ThisProcessor, ColorRowsPath, testing::ValuesIn(processorPaths()), nameOf);

} // namespace
