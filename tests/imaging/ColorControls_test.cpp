// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorControls.h"

#include "Pages.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

using namespace imaging;

namespace {

double passed(double tone, double brightness, double contrast)
{
    return (tone + 255.0 * brightness - 127.5) * contrast + 127.5;
}

/// Two plain passes in floating point, clamped and rounded once.
std::uint8_t expectedTone(int value, float brightness, float contrast)
{
    const double tone = passed(passed(value, double(brightness), 1.0), 0.0, double(contrast));
    return std::uint8_t(std::clamp(std::floor(tone + 0.5), 0.0, 255.0));
}

ColorControls filterFor(float brightness, float contrast)
{
    return ColorControls({brightness, 1.0F}, {0.0F, contrast});
}

ColorControls filterForLevels(int brightness, int contrast)
{
    return filterFor(float(brightness) / 40.0F, float(contrast) / 40.0F + 1.0F);
}

/// 256 pixels in which red, green and blue each take every value once; alpha is never 0.
Bytes allValues()
{
    Bytes pixels;
    for (int i = 0; i < 256; ++i) {
        for (const int byte : {i, 255 - i, i ^ 0x55, i | 1}) {
            pixels.push_back(std::uint8_t(byte));
        }
    }
    return pixels;
}

Bytes expectedPixels(const Bytes &pixels, float brightness, float contrast)
{
    Bytes expected = pixels;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const bool invisible = pixels[i / 4 * 4 + 3] == 0;
        if (i % 4 != 3 && !invisible) {
            expected[i] = expectedTone(pixels[i], brightness, contrast);
        }
    }
    return expected;
}

struct Levels
{
    int brightness;
    int contrast;
};

std::vector<Levels> allLevels()
{
    std::vector<Levels> levels;
    for (int brightness = -20; brightness <= 20; ++brightness) {
        for (int contrast = -20; contrast <= 20; ++contrast) {
            levels.push_back({brightness, contrast});
        }
    }
    return levels;
}

class ColorControlsPath : public testing::TestWithParam<ProcessorPath>
{
protected:
    Bytes filtered(const ColorControls &filter, const Bytes &pixels) const
    {
        Bytes result(pixels.size(), 0xA5);
        const std::size_t width = pixels.size() / 4;
        filter.apply({pixels.data(), width, 1, pixels.size()},
                     {result.data(), width, 1, pixels.size()}, GetParam());
        return result;
    }

    std::mt19937 random{20240611};
};

TEST_P(ColorControlsPath, IsExactForEveryValueAndEveryPairOfLevels)
{
    const Bytes pixels = allValues();
    for (const Levels &levels : allLevels()) {
        const float brightness = float(levels.brightness) / 40.0F;
        const float contrast = float(levels.contrast) / 40.0F + 1.0F;
        ASSERT_EQ(filtered(filterFor(brightness, contrast), pixels),
                  expectedPixels(pixels, brightness, contrast))
            << "levels " << levels.brightness << ", " << levels.contrast;
    }
}

TEST_P(ColorControlsPath, IsExactForArbitraryParametersOfTheirRange)
{
    std::uniform_real_distribution<float> brightnesses(-0.5F, 0.5F);
    std::uniform_real_distribution<float> contrasts(0.5F, 1.5F);
    const Bytes pixels = allValues();
    for (int i = 0; i < 5000; ++i) {
        const float brightness = brightnesses(random);
        const float contrast = contrasts(random);
        ASSERT_EQ(filtered(filterFor(brightness, contrast), pixels),
                  expectedPixels(pixels, brightness, contrast))
            << brightness << ", " << contrast;
    }
}

TEST_P(ColorControlsPath, IsExactForParametersFarOutside)
{
    const Bytes pixels = allValues();
    for (const float brightness : {-1e30F, -3.0F, -1.0F, -0.7F, 0.0F, 0.9F, 1.0F, 2.0F, 1e30F}) {
        for (const float contrast : {-1.0F, 0.0F, 1e-6F, 0.01F, 1.99999F, 2.0F, 3.0F, 1e20F}) {
            ASSERT_EQ(filtered(filterFor(brightness, contrast), pixels),
                      expectedPixels(pixels, brightness, contrast))
                << brightness << ", " << contrast;
        }
    }
}

TEST_P(ColorControlsPath, KeepsEveryAlphaAndEveryInvisiblePixelWhole)
{
    Bytes pixels;
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (const int byte : {200, 100, 0, alpha}) {
            pixels.push_back(std::uint8_t(byte));
        }
    }
    const Bytes result = filtered(filterForLevels(10, 0), pixels);
    EXPECT_EQ(result, expectedPixels(pixels, 0.25F, 1.0F));
    EXPECT_THAT(Bytes(result.begin(), result.begin() + 4), testing::ElementsAre(200, 100, 0, 0));
    EXPECT_THAT(Bytes(result.begin() + 512, result.begin() + 516),
                testing::ElementsAre(255, 164, 64, 128));
}

TEST_P(ColorControlsPath, KeepsInvisiblePixelsAnywhereInARow)
{
    Bytes pixels(67 * 4);
    std::generate(pixels.begin(), pixels.end(), [this] { return std::uint8_t(random()); });
    for (std::size_t i = 3; i < pixels.size(); i += 4) {
        pixels[i] = random() % 2 == 0 ? std::uint8_t(0) : pixels[i];
    }
    EXPECT_EQ(filtered(filterForLevels(20, -7), pixels), expectedPixels(pixels, 0.5F, 0.825F));
}

TEST_P(ColorControlsPath, TouchesOnlyThePixelsOfEachRowAtAnyWidthPaddingAndPlace)
{
    const ColorControls filter = filterForLevels(3, 9);
    for (std::size_t width = 0; width <= 41; ++width) {
        for (std::size_t place = 0; place < 35; place += 3) {
            const std::size_t fromRow = width * 4 + place;
            const std::size_t toRow = width * 4 + 34 - place;
            Bytes from(fromRow * 3 + place);
            std::generate(from.begin(), from.end(), [this] { return std::uint8_t(random()); });
            Bytes to(toRow * 3 + place, 0xA5);
            Bytes expected = to;
            for (std::size_t y = 0; y < 3; ++y) {
                const auto row = from.begin() + std::ptrdiff_t(place + y * fromRow);
                const Bytes pixels(row, row + std::ptrdiff_t(width * 4));
                const Bytes result = expectedPixels(pixels, 3.0F / 40.0F, 9.0F / 40.0F + 1.0F);
                std::copy(result.begin(), result.end(),
                          expected.begin() + std::ptrdiff_t(place + y * toRow));
            }
            filter.apply({from.data() + place, width, 3, fromRow},
                         {to.data() + place, width, 3, toRow}, GetParam());
            ASSERT_EQ(to, expected) << "width " << width << ", place " << place;
        }
    }
}

TEST_P(ColorControlsPath, GivesTheSameInPlace)
{
    const Bytes pixels = allValues();
    const ColorControls filter = filterForLevels(-6, 13);
    Bytes inPlace = pixels;
    filter.apply({inPlace.data(), 256, 1, 1024}, {inPlace.data(), 256, 1, 1024}, GetParam());
    EXPECT_EQ(inPlace, filtered(filter, pixels));
}

TEST_P(ColorControlsPath, TakesAPictureWithoutRows)
{
    filterForLevels(1, 1).apply({}, {}, GetParam());
    std::uint8_t byte = 9;
    filterForLevels(1, 1).apply({&byte, 1, 0, 4}, {&byte, 1, 0, 4}, GetParam());
    EXPECT_EQ(byte, 9);
}

std::string nameOf(const testing::TestParamInfo<ProcessorPath> &path)
{
    return testing::PrintToString(path.param);
}

// A way that the processor lacks has no test of its own, rather than one that passes untried.
INSTANTIATE_TEST_SUITE_P(ThisProcessor, ColorControlsPath, testing::ValuesIn(processorPaths()),
                         nameOf);

TEST(ColorControls, TheFastestWayIsTaken)
{
    const Bytes pixels = allValues();
    Bytes result(pixels.size());
    filterForLevels(4, 4).apply({pixels.data(), 256, 1, 1024}, {result.data(), 256, 1, 1024});
    EXPECT_EQ(result, expectedPixels(pixels, 0.1F, 1.1F));
    EXPECT_EQ(processorPaths().front(), ProcessorPath::Plain);
}

TEST(ColorControls, EveryPairOfLevelsHasExactVectorArithmetic)
{
    for (const Levels &levels : allLevels()) {
        const ColorControls filter = filterForLevels(levels.brightness, levels.contrast);
        ASSERT_TRUE(filter.fixedPoint()) << levels.brightness << ", " << levels.contrast;
        for (int value = 0; value < 256; ++value) {
            ASSERT_EQ((*filter.fixedPoint())(std::uint8_t(value)),
                      filter.table()[std::size_t(value)]);
        }
    }
}

TEST(ColorControls, SteepLinesHaveOnlyTheTable)
{
    EXPECT_FALSE(filterFor(0.0F, 3.0F).fixedPoint());
    EXPECT_FALSE(filterFor(0.0F, -1.0F).fixedPoint());
    EXPECT_EQ(filterFor(0.0F, -1.0F).table()[10], 245);
}

TEST(ColorControls, ATableThatIsNoStraightLineHasNoVectorArithmetic)
{
    ToneTable table = filterForLevels(0, 0).table();
    EXPECT_TRUE(fixedPointFor(table, 1.0));
    table[100] = 103;
    EXPECT_FALSE(fixedPointFor(table, 1.0));
    EXPECT_FALSE(fixedPointFor(table, std::nan("")));
}

TEST(ColorControls, BothPassesTakeBrightnessAndContrast)
{
    const ColorControls filter({0.25F, 0.5F}, {-0.25F, 1.5F});
    EXPECT_EQ(filter.table()[0], 0);
    EXPECT_EQ(filter.table()[100], 59);
    EXPECT_EQ(filter.table()[128], 80);
    EXPECT_EQ(filter.table()[255], 175);
}

struct Vector
{
    Levels levels;
    int tones[5];
};

TEST(ColorControls, TonesMoveAroundTheMiddleAndAreCutOnlyAtTheEnd)
{
    constexpr int kValues[] = {0, 64, 128, 192, 255};
    constexpr Vector kVectors[] = {
        {{0, 0}, {0, 64, 128, 192, 255}},    {{10, 0}, {64, 128, 192, 255, 255}},
        {{-10, 0}, {0, 0, 64, 128, 191}},    {{0, 10}, {0, 48, 128, 208, 255}},
        {{0, -10}, {32, 80, 128, 176, 223}}, {{10, -10}, {80, 128, 176, 224, 255}},
        {{-10, -10}, {0, 32, 80, 128, 175}}, {{20, 0}, {128, 192, 255, 255, 255}},
        {{-20, 0}, {0, 0, 1, 65, 128}},
    };
    for (const Vector &vector : kVectors) {
        const ColorControls filter =
            filterForLevels(vector.levels.brightness, vector.levels.contrast);
        for (std::size_t i = 0; i < std::size(kValues); ++i) {
            EXPECT_EQ(filter.table()[std::size_t(kValues[i])], vector.tones[i])
                << "value " << kValues[i] << " at levels " << vector.levels.brightness << ", "
                << vector.levels.contrast;
        }
    }
}

} // namespace
