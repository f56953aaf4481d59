// SPDX-License-Identifier: Apache-2.0
#include "imaging/PagePreparation.h"

#include "Pages.h"

#include <algorithm>
#include <string>
#include <tuple>

using namespace imaging;

namespace {

/// Every kind of page, each on every path.
using Kind = std::tuple<HalftoneMethod, ColorMode, InputFormat>;

class PageKind : public testing::TestWithParam<Kind>
{
protected:
    PageSettings settings() const
    {
        PageSettings settings;
        settings.method = std::get<0>(GetParam());
        settings.colorMode = std::get<1>(GetParam());
        return settings;
    }

    PageSettings randomSettings()
    {
        PageSettings drawn = settings();
        drawn.brightness = level();
        drawn.contrast = level();
        drawn.redLevel = level();
        return drawn;
    }

    InputFormat format() const { return std::get<2>(GetParam()); }
    std::size_t samples() const { return format() == InputFormat::Rgb24 ? 3 : 1; }
    int level() { return int(random() % 41) - 20; }

    /// Noise, with runs of black, white and red as pages have them.
    Bytes randomPixels(std::size_t count)
    {
        Bytes pixels = randomBytes(&random, count * samples());
        for (std::size_t x = 0; x < count;) {
            const std::size_t run = std::min<std::size_t>(random() % 90, count - x);
            const auto kind = random() % 5;
            for (std::size_t i = 0; i < run * samples() && kind < 3; ++i) {
                const bool full = kind == 1 || (kind == 2 && i % samples() == 0);
                pixels[x * samples() + i] = full ? 255 : 0;
            }
            x += run + 1;
        }
        return pixels;
    }

    std::mt19937 random{20240229};
};

TEST_P(PageKind, EveryPathGivesTheSameBits)
{
    for (int round = 0; round < 60; ++round) {
        const PageSettings drawn = randomSettings();
        const std::size_t width = 1 + random() % 400;
        const Bytes pixels = randomPixels(width * 24);
        const Dots plain = prepared(drawn, pixels, width, format(), ProcessorPath::Plain);
        for (const ProcessorPath path : processorPaths()) {
            const Dots dots = prepared(drawn, pixels, width, format(), path);
            ASSERT_EQ(dots.black, plain.black) << width << ", " << int(path);
            ASSERT_EQ(dots.red, plain.red) << width << ", " << int(path);
        }
    }
}

TEST_P(PageKind, EveryWidthGivesTheSameBitsOnEveryPath)
{
    for (std::size_t width = 1; width <= 300; ++width) {
        const PageSettings drawn = randomSettings();
        const Bytes pixels = randomPixels(width * 3);
        const Dots plain = prepared(drawn, pixels, width, format(), ProcessorPath::Plain);
        for (const ProcessorPath path : processorPaths()) {
            const Dots dots = prepared(drawn, pixels, width, format(), path);
            ASSERT_EQ(dots.black, plain.black) << width << ", " << int(path);
            ASSERT_EQ(dots.red, plain.red) << width << ", " << int(path);
        }
    }
}

TEST_P(PageKind, RowsMayBeDividedIntoCallsAnyWay)
{
    const std::size_t width = 173;
    const std::size_t height = 64;
    const PageSettings drawn = randomSettings();
    const Bytes pixels = randomPixels(width * height);
    PagePreparation whole(drawn, width, format());
    PagePreparation parts(drawn, width, format());
    const std::size_t in = whole.inputRowBytes();
    const std::size_t out = whole.outputRowBytes();
    Bytes black(height * out);
    Bytes red(height * out);
    ASSERT_TRUE(whole.rows(pixels, black, red));
    Bytes blackParts(height * out);
    Bytes redParts(height * out);
    for (std::size_t y = 0; y < height;) {
        const std::size_t rows = std::min<std::size_t>(random() % 7, height - y);
        ASSERT_TRUE(parts.rows(std::span(pixels).subspan(y * in, rows * in),
                               std::span(blackParts).subspan(y * out, rows * out),
                               std::span(redParts).subspan(y * out, rows * out)));
        y += rows;
    }
    EXPECT_EQ(blackParts, black);
    EXPECT_EQ(redParts, red);
}

TEST_P(PageKind, TouchesOnlyItsRowsAtAnyWidthAndPlace)
{
    for (const ProcessorPath path : processorPaths()) {
        for (std::size_t width = 1; width <= 140; width += 1 + width / 40) {
            PagePreparation page(randomSettings(), width, format(), path);
            const std::size_t place = random() % 37;
            const std::size_t out = page.outputRowBytes() * 3;
            // Vectors of their very size, so that a sanitizer sees a byte read beyond.
            const Bytes pixels = randomPixels(width * 3);
            Bytes black(place + out + 40, 0xA5);
            Bytes red(place + out + 40, 0x5A);
            ASSERT_TRUE(page.rows(pixels, std::span(black).subspan(place, out),
                                  std::span(red).subspan(place, out)));
            for (std::size_t i = 0; i < black.size(); ++i) {
                if (i < place || i >= place + out) {
                    ASSERT_EQ(black[i], 0xA5) << i << ", width " << width;
                    ASSERT_EQ(red[i], 0x5A) << i << ", width " << width;
                }
            }
        }
    }
}

TEST_P(PageKind, TheBitsBehindTheLastPixelAreNotInked)
{
    for (std::size_t width = 1; width <= 40; ++width) {
        for (const ProcessorPath path : processorPaths()) {
            PagePreparation page(settings(), width, format(), path);
            const Bytes pixels(page.inputRowBytes() * 5, 0);
            Bytes black(page.outputRowBytes() * 5, 0xFF);
            Bytes red(black.size(), 0xFF);
            ASSERT_TRUE(page.rows(pixels, black, red));
            const auto rest = std::uint8_t(0xFF >> ((width - 1) % 8 + 1));
            for (std::size_t y = 1; y <= 5; ++y) {
                ASSERT_EQ(black[y * page.outputRowBytes() - 1] & rest, 0) << width;
                ASSERT_EQ(black[y * page.outputRowBytes() - 1] | rest, 0xFF) << width;
            }
            ASSERT_EQ(red, Bytes(red.size(), 0)) << width;
        }
    }
}

TEST_P(PageKind, NoDotIsBlackAndRed)
{
    for (int round = 0; round < 20; ++round) {
        const std::size_t width = 1 + random() % 200;
        const Dots dots = prepared(randomSettings(), randomPixels(width * 20), width, format());
        for (std::size_t i = 0; i < dots.black.size(); ++i) {
            ASSERT_LE(dots.black[i] + dots.red[i], 1);
        }
    }
}

TEST_P(PageKind, BlackAndWhiteStayAsTheyAre)
{
    const std::size_t width = 211;
    const std::size_t height = 40;
    Bytes pixels;
    Bytes expected;
    for (std::size_t i = 0; i < width * height; ++i) {
        const bool ink = random() % 3 == 0;
        pixels.insert(pixels.end(), samples(), ink ? 0 : 255);
        expected.push_back(ink ? 1 : 0);
    }
    const Dots dots = prepared(settings(), pixels, width, format());
    EXPECT_EQ(dots.black, expected);
    EXPECT_EQ(dots.red, Bytes(expected.size(), 0));
}

TEST_P(PageKind, BlackAndWhiteStayAmongOtherTonesToo)
{
    const std::size_t width = 211;
    Bytes pixels = randomBytes(&random, width * 60 * samples());
    Bytes kinds;
    for (std::size_t i = 0; i < width * 60; ++i) {
        kinds.push_back(std::uint8_t(random() % 3));
        if (kinds.back() < 2) {
            std::fill_n(pixels.begin() + std::ptrdiff_t(i * samples()), samples(),
                        std::uint8_t(kinds.back() == 0 ? 0 : 255));
        }
    }
    const Dots dots = prepared(settings(), pixels, width, format());
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        ASSERT_FALSE(kinds[i] == 0 && dots.black[i] == 0) << i;
        ASSERT_FALSE(kinds[i] == 1 && (dots.black[i] == 1 || dots.red[i] == 1)) << i;
    }
}

TEST_P(PageKind, OnePixelIsAPage)
{
    EXPECT_EQ(prepared(settings(), Bytes(samples(), 0), 1, format()).black, Bytes{1});
    EXPECT_EQ(prepared(settings(), Bytes(samples(), 255), 1, format()).black, Bytes{0});
}

TEST_P(PageKind, APageMayHaveNoRowsOrNoWidth)
{
    PagePreparation noRows(settings(), 9, format());
    EXPECT_TRUE(noRows.rows({}, {}, {}));
    PagePreparation noWidth(settings(), 0, format());
    EXPECT_EQ(noWidth.outputRowBytes(), 0U);
    EXPECT_TRUE(noWidth.row({}, {}, {}));
    EXPECT_TRUE(noWidth.rows({}, {}, {}));
}

TEST_P(PageKind, RefusesRoomThatDoesNotFitAndTouchesNothing)
{
    PagePreparation page(settings(), 20, format());
    const Bytes pixels(page.inputRowBytes() * 2, 0);
    const auto half = std::span(pixels).first(page.inputRowBytes() + 1);
    Bytes black(6, 0xA5);
    Bytes red(6, 0xA5);
    EXPECT_FALSE(page.rows(half, black, red));
    EXPECT_FALSE(page.rows(pixels, std::span(black).first(5), red));
    Bytes more(7, 0xA5);
    EXPECT_FALSE(page.rows(pixels, more, red));
    EXPECT_EQ(more, Bytes(7, 0xA5));
    EXPECT_FALSE(page.rows(pixels, black, std::span(red).first(3)));
    EXPECT_FALSE(page.row(pixels, black, red));
    EXPECT_EQ(black, Bytes(6, 0xA5));
    EXPECT_EQ(red, Bytes(6, 0xA5));
    EXPECT_TRUE(page.rows(pixels, black, red));
}

TEST_P(PageKind, RedRoomIsNeededOnlyForTwoColors)
{
    PagePreparation page(settings(), 8, format());
    const Bytes pixels(page.inputRowBytes(), 0);
    Bytes black(1);
    EXPECT_EQ(page.row(pixels, black), settings().colorMode == ColorMode::Monochrome);
}

TEST_P(PageKind, APageCanBeHandedOn)
{
    const Bytes pixels = randomPixels(50 * 8);
    const Dots expected = prepared(settings(), pixels, 50, format());
    PagePreparation first(settings(), 50, format());
    PagePreparation page = std::move(first);
    Bytes black(8 * page.outputRowBytes());
    Bytes red(black.size());
    ASSERT_TRUE(page.rows(pixels, black, red));
    EXPECT_EQ(unpacked(black, 50, 8), expected.black);
}

TEST_P(PageKind, GreyPixelsAndEqualColorsGiveTheSameDots)
{
    const std::size_t width = 190;
    const Bytes grey = randomBytes(&random, width * 30);
    Bytes rgb;
    for (const std::uint8_t value : grey) {
        rgb.insert(rgb.end(), 3, value);
    }
    const PageSettings drawn = randomSettings();
    const Dots fromGrey = prepared(drawn, grey, width, InputFormat::Gray8);
    const Dots fromRgb = prepared(drawn, rgb, width, InputFormat::Rgb24);
    EXPECT_EQ(fromRgb.black, fromGrey.black);
    EXPECT_EQ(fromRgb.red, Bytes(fromGrey.red.size(), 0));
    EXPECT_EQ(fromGrey.red, fromRgb.red);
}

std::string nameOf(const testing::TestParamInfo<Kind> &kind)
{
    return testing::PrintToString(std::get<0>(kind.param)) + '_'
        + testing::PrintToString(std::get<1>(kind.param)) + '_'
        + testing::PrintToString(std::get<2>(kind.param));
}

INSTANTIATE_TEST_SUITE_P(
    All, PageKind,
    testing::Combine(testing::Values(HalftoneMethod::Binary, HalftoneMethod::Dither,
                                     HalftoneMethod::ErrorDiffusion),
                     testing::Values(ColorMode::Monochrome, ColorMode::BlackRed),
                     testing::Values(InputFormat::Gray8, InputFormat::Rgb24)),
    nameOf);

} // namespace
