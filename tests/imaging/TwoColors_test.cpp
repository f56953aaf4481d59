// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "imaging/Separation.h"

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace imaging;

namespace {

constexpr std::size_t kSide = 256;

PageSettings settingsFor(HalftoneMethod method)
{
    PageSettings settings;
    settings.method = method;
    settings.colorMode = ColorMode::BlackRed;
    return settings;
}

struct Flat
{
    int red;
    int green;
    int blue;
};

constexpr Flat kFlats[] = {{255, 0, 0},     {128, 0, 0},     {200, 30, 40}, {255, 128, 128},
                           {240, 200, 190}, {120, 80, 70},   {0, 0, 255},   {0, 160, 60},
                           {90, 90, 90},    {250, 250, 250}, {255, 165, 0}, {60, 20, 10}};

class TwoColors : public testing::TestWithParam<HalftoneMethod>
{
protected:
    Dots dotsOf(const Bytes &rgb, int level, std::size_t width = kSide) const
    {
        PageSettings settings = settingsFor(GetParam());
        settings.redLevel = level;
        return prepared(settings, rgb, width, InputFormat::Rgb24);
    }

    Dots dotsOf(const Flat &flat, int level) const
    {
        return dotsOf(pixelsOf({flat.red, flat.green, flat.blue}, kSide * kSide), level);
    }
};

TEST_P(TwoColors, FlatColorsGetTheirSharesOfBlackAndRed)
{
    for (const Flat &flat : kFlats) {
        for (const int level : {-20, -8, 0, 8, 20}) {
            const Shares shares = sharesOf(unsigned(flat.red), unsigned(flat.green),
                                           unsigned(flat.blue), redBorder(level));
            double black = shares.black() / 255.0;
            double red = shares.red / 255.0;
            if (GetParam() == HalftoneMethod::Binary) {
                const bool ink = shares.paper < 128;
                red = ink && shares.red > shares.black() ? 1.0 : 0.0;
                black = ink ? 1.0 - red : 0.0;
            }
            const Dots dots = dotsOf(flat, level);
            ASSERT_NEAR(inkedPart(dots.black), black, 0.5 / double(kSide))
                << flat.red << ' ' << flat.green << ' ' << flat.blue << " at " << level;
            ASSERT_NEAR(inkedPart(dots.red), red, 0.5 / double(kSide))
                << flat.red << ' ' << flat.green << ' ' << flat.blue << " at " << level;
        }
    }
}

/// 32768 colours in 181 rows: all of 5 bits each.
Bytes manyColors()
{
    Bytes rgb;
    for (int i = 0; i < 181 * 182; ++i) {
        for (const int shift : {10, 5, 0}) {
            const int step = (i >> shift) & 31;
            rgb.push_back(std::uint8_t(step * 255 / 31));
        }
    }
    return rgb;
}

TEST_P(TwoColors, TheLowestLevelHasNoRed)
{
    EXPECT_EQ(inkedPart(dotsOf(manyColors(), -20, 182).red), 0.0);
}

TEST_P(TwoColors, PureRedIsRedAndPureBlackBlackAtEveryOtherLevel)
{
    for (int level = -19; level <= 20; ++level) {
        ASSERT_EQ(inkedPart(dotsOf(pixelsOf({255, 0, 0}, 900), level, 30).red), 1.0) << level;
        ASSERT_EQ(inkedPart(dotsOf(pixelsOf({0, 0, 0}, 900), level, 30).black), 1.0) << level;
    }
}

TEST_P(TwoColors, GreysHaveNoRedNextToARedPictureToo)
{
    std::mt19937 random(99);
    const std::size_t width = 300;
    Bytes rgb;
    for (std::size_t i = 0; i < width * 200; ++i) {
        const bool grey = i / width % 50 > 30 || i % width % 100 > 60;
        const auto value = std::uint8_t(random());
        const auto other = std::uint8_t(grey ? value : random() % 100);
        rgb.insert(rgb.end(), {value, other, other});
    }
    const Dots dots = dotsOf(rgb, 20, width);
    std::size_t reds = 0;
    for (std::size_t i = 0; i < dots.red.size(); ++i) {
        const bool neutral = rgb[i * 3] == rgb[i * 3 + 1];
        ASSERT_FALSE(neutral && dots.red[i] == 1) << i;
        reds += dots.red[i];
    }
    EXPECT_GT(reds, 1000U);
}

std::string nameOf(const testing::TestParamInfo<HalftoneMethod> &method)
{
    return testing::PrintToString(method.param);
}

INSTANTIATE_TEST_SUITE_P(All, TwoColors,
                         testing::Values(HalftoneMethod::Binary, HalftoneMethod::Dither,
                                         HalftoneMethod::ErrorDiffusion),
                         nameOf);

/// The methods that decide each pixel by itself.
class TwoColorsByPlace : public TwoColors
{ };

TEST_P(TwoColorsByPlace, ARedPixelStaysRedAtEveryHigherLevelAndWhiteStaysWhite)
{
    const Bytes colors = manyColors();
    Dots before = dotsOf(colors, -20, 182);
    for (int level = -19; level <= 20; ++level) {
        const Dots dots = dotsOf(colors, level, 182);
        for (std::size_t i = 0; i < dots.red.size(); ++i) {
            ASSERT_GE(dots.red[i], before.red[i]) << i << " at " << level;
            ASSERT_EQ(dots.red[i] + dots.black[i], before.red[i] + before.black[i]) << i;
        }
        before = dots;
    }
    EXPECT_GT(inkedPart(before.red), 0.1);
}

INSTANTIATE_TEST_SUITE_P(All, TwoColorsByPlace,
                         testing::Values(HalftoneMethod::Binary, HalftoneMethod::Dither), nameOf);

TEST(TwoColorDiffusion, AHigherLevelNeverHasLessRed)
{
    for (const Flat &flat : kFlats) {
        const Bytes rgb = pixelsOf({flat.red, flat.green, flat.blue}, 128 * 128);
        double before = 0.0;
        for (int level = -20; level <= 20; ++level) {
            PageSettings settings = settingsFor(HalftoneMethod::ErrorDiffusion);
            settings.redLevel = level;
            const double red = inkedPart(prepared(settings, rgb, 128, InputFormat::Rgb24).red);
            ASSERT_GE(red, before - 0.5 / 128) << flat.red << ' ' << flat.green << " at " << level;
            before = red;
        }
    }
}

TEST(TwoColorDiffusion, NoPixelTakesAColorItHasNoShareOf)
{
    // Pinks, dark reds and greys among each other, so that much is due of what a pixel must not
    // take.
    std::mt19937 random(41);
    Bytes rgb;
    for (int i = 0; i < 300 * 300; ++i) {
        const auto tone = std::uint8_t(random());
        const std::array<std::array<std::uint8_t, 3>, 4> kinds{
            {{255, tone, tone}, {tone, 0, 0}, {tone, tone, tone}, {std::uint8_t(tone / 4), 0, 0}}};
        const auto &kind = kinds[random() % 4];
        rgb.insert(rgb.end(), kind.begin(), kind.end());
    }
    PageSettings settings = settingsFor(HalftoneMethod::ErrorDiffusion);
    settings.redLevel = 12;
    const Dots dots = prepared(settings, rgb, 300, InputFormat::Rgb24);
    std::array<int, 3> barred{};
    for (std::size_t i = 0; i < dots.black.size(); ++i) {
        const Shares shares =
            sharesOf(rgb[i * 3], rgb[i * 3 + 1], rgb[i * 3 + 2], redBorder(settings.redLevel));
        const bool white = dots.black[i] == 0 && dots.red[i] == 0;
        ASSERT_FALSE(shares.black() == 0 && dots.black[i] == 1) << i;
        ASSERT_FALSE(shares.red == 0 && dots.red[i] == 1) << i;
        ASSERT_FALSE(shares.paper == 0 && white) << i;
        barred[0] += shares.black() == 0 ? 1 : 0;
        barred[1] += shares.red == 0 ? 1 : 0;
        barred[2] += shares.paper == 0 ? 1 : 0;
    }
    EXPECT_THAT(barred, testing::Each(testing::Gt(2000)));
}

TEST(TwoColorDiffusion, ErrorsThatAreDrivenTogetherGiveTheSameDotsOnEveryPath)
{
    // Colours that lack one of the three side by side with ones that lack another, so that what is
    // due can be taken late only.
    std::mt19937 random(17);
    const std::size_t width = 200;
    for (int round = 0; round < 20; ++round) {
        std::array<std::array<std::uint8_t, 3>, 3> kinds{};
        for (auto &kind : kinds) {
            const auto least = std::uint8_t(random() % 6);
            const auto most = std::uint8_t(255 - random() % 6);
            const auto some = std::uint8_t(random());
            kind = {random() % 2 == 0 ? most : some, random() % 2 == 0 ? least : some, least};
        }
        Bytes rgb;
        for (std::size_t i = 0; i < width * 150; ++i) {
            const auto &kind = kinds[round % 2 == 0 ? i % 3 : random() % 3];
            rgb.insert(rgb.end(), kind.begin(), kind.end());
        }
        PageSettings settings = settingsFor(HalftoneMethod::ErrorDiffusion);
        settings.redLevel = int(random() % 41) - 20;
        const Dots plain = prepared(settings, rgb, width, InputFormat::Rgb24, ProcessorPath::Plain);
        for (const ProcessorPath path : processorPaths()) {
            const Dots dots = prepared(settings, rgb, width, InputFormat::Rgb24, path);
            ASSERT_EQ(dots.black, plain.black) << round << ", " << int(path);
            ASSERT_EQ(dots.red, plain.red) << round << ", " << int(path);
        }
    }
}

} // namespace
