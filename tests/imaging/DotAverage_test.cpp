// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "imaging/DotAverage.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace imaging;

namespace {

/// A page of dots as packed rows.
struct DotPage
{
    Extent size;
    Bytes black;
    Bytes red;

    explicit DotPage(Extent extent)
        : size(extent)
        , black(rowBytes() * extent.height)
        , red(black.size())
    { }

    std::size_t rowBytes() const { return (size.width + 7) / 8; }
    void ink(Bytes *plane, std::size_t x, std::size_t y) const
    {
        (*plane)[y * rowBytes() + x / 8] |= std::uint8_t(0x80U >> (x % 8));
    }
    bool isInked(const Bytes &plane, std::size_t x, std::size_t y) const
    {
        return ((plane[y * rowBytes() + x / 8] >> (7 - x % 8)) & 1) != 0;
    }
};

/// The picture: parts of black and red, row by row.
struct Picture
{
    Extent size;
    Bytes black;
    Bytes red;

    int at(std::size_t x, std::size_t y) const { return black[y * size.width + x]; }
};

Picture averaged(const DotPage &page, Extent pixels)
{
    Picture picture{pixels, {}, {}};
    DotAverage average(page.size, pixels);
    std::size_t rows = 0;
    const auto keep = [&](std::size_t y, std::span<const std::uint8_t> black,
                          std::span<const std::uint8_t> red) {
        EXPECT_EQ(y, rows++);
        picture.black.insert(picture.black.end(), black.begin(), black.end());
        picture.red.insert(picture.red.end(), red.begin(), red.end());
    };
    for (std::size_t y = 0; y < page.size.height; ++y) {
        const std::span black(page.black.data() + y * page.rowBytes(), page.rowBytes());
        const std::span red(page.red.data() + y * page.rowBytes(), page.rowBytes());
        EXPECT_TRUE(average.row(black, red, keep));
    }
    EXPECT_EQ(rows, pixels.height);
    return picture;
}

template <class Inked> DotPage pageOf(Extent size, const Inked &isBlack)
{
    DotPage page(size);
    for (std::size_t y = 0; y < size.height; ++y) {
        for (std::size_t x = 0; x < size.width; ++x) {
            if (isBlack(x, y)) {
                page.ink(&page.black, x, y);
            }
        }
    }
    return page;
}

DotPage randomPage(Extent size, unsigned seed)
{
    std::mt19937 random(seed);
    DotPage page(size);
    for (std::size_t y = 0; y < size.height; ++y) {
        for (std::size_t x = 0; x < size.width; ++x) {
            const auto kind = random() % 3;
            if (kind > 0) {
                page.ink(kind == 1 ? &page.black : &page.red, x, y);
            }
        }
    }
    return page;
}

/// A page of one tone as `method` prints it.
DotPage tintPage(HalftoneMethod method, int tone, Extent size)
{
    PageSettings settings;
    settings.method = method;
    PagePreparation preparation(settings, size.width, InputFormat::Gray8);
    DotPage page(size);
    EXPECT_TRUE(preparation.rows(Bytes(size.width * size.height, std::uint8_t(tone)), page.black));
    return page;
}

const Extent kPage{183, 295};
/// Smaller in steps that are no whole numbers, other ones across than down, the same size, larger.
const Extent kSizes[] = {{1, 1},    {7, 295},   {83, 133},  {91, 147},  {100, 290},
                         {182, 98}, {183, 295}, {184, 700}, {366, 590}, {500, 21}};

TEST(DotAverage, PaperStaysPaperAndFullInkStaysFullInkAtAnySize)
{
    const DotPage paper(kPage);
    const DotPage black = pageOf(kPage, [](auto, auto) { return true; });
    DotPage red(kPage);
    red.red = black.black;
    for (const Extent size : kSizes) {
        const std::size_t pixels = size.width * size.height;
        EXPECT_EQ(averaged(paper, size).black, Bytes(pixels, 0));
        EXPECT_EQ(averaged(paper, size).red, Bytes(pixels, 0));
        EXPECT_EQ(averaged(black, size).black, Bytes(pixels, 255));
        EXPECT_EQ(averaged(black, size).red, Bytes(pixels, 0));
        EXPECT_EQ(averaged(red, size).black, Bytes(pixels, 0));
        EXPECT_EQ(averaged(red, size).red, Bytes(pixels, 255));
    }
}

TEST(DotAverage, InTheSameSizeEachPixelIsItsDot)
{
    const DotPage page = randomPage(kPage, 1);
    const Picture picture = averaged(page, kPage);
    for (std::size_t y = 0; y < kPage.height; ++y) {
        for (std::size_t x = 0; x < kPage.width; ++x) {
            const std::size_t i = y * kPage.width + x;
            ASSERT_EQ(picture.black[i], page.isInked(page.black, x, y) ? 255 : 0);
            ASSERT_EQ(picture.red[i], page.isInked(page.red, x, y) ? 255 : 0);
        }
    }
}

TEST(DotAverage, WholeTimesLargerEachDotIsABlockOfPixels)
{
    const DotPage page = randomPage({45, 31}, 2);
    const Picture picture = averaged(page, {45 * 3, 31 * 2});
    for (std::size_t y = 0; y < picture.size.height; ++y) {
        for (std::size_t x = 0; x < picture.size.width; ++x) {
            ASSERT_EQ(picture.at(x, y), page.isInked(page.black, x / 3, y / 2) ? 255 : 0);
        }
    }
}

TEST(DotAverage, LargerPixelsHaveTheAreaOfTheDotsUnderThem)
{
    // Five pixels over two dots: the middle one sees half of each.
    const DotPage page = pageOf({2, 2}, [](auto x, auto y) { return x == 0 && y == 0; });
    const Picture picture = averaged(page, {5, 5});
    const int across[] = {255, 255, 128, 0, 0};
    for (std::size_t x = 0; x < 5; ++x) {
        EXPECT_EQ(picture.at(x, 0), across[x]) << x;
        EXPECT_EQ(picture.at(0, x), across[x]) << x;
    }
    EXPECT_EQ(picture.at(2, 2), 64);
}

/// The part of the dots from 0 to `count` that a pixel of `length` around `middle` sees, by summing
/// up: a window as long as the pixel, moved over as much again.
std::vector<double> summedWeights(std::size_t count, double middle, double length)
{
    constexpr int kSteps = 60;
    const double around = length > 1 ? std::max(2.0, length) : 0.0;
    std::vector<double> weights(count);
    double whole = 0;
    for (int i = 0; i < kSteps; ++i) {
        for (int k = 0; k < kSteps; ++k) {
            const double at =
                middle + ((i + 0.5) / kSteps - 0.5) * length + ((k + 0.5) / kSteps - 0.5) * around;
            if (at >= 0 && at < double(count)) {
                weights[std::size_t(at)] += 1;
                whole += 1;
            }
        }
    }
    for (double &weight : weights) {
        weight /= whole;
    }
    return weights;
}

TEST(DotAverage, SmallerPixelsSeeTheirAreaAndAsMuchAroundIt)
{
    const DotPage page = randomPage(kPage, 3);
    const Extent size{61, 118};
    const Picture picture = averaged(page, size);
    for (const auto &[px, py] : {std::pair(0, 0), {60, 117}, {30, 50}, {17, 1}, {59, 100}}) {
        const double lengthX = 183.0 / 61;
        const double lengthY = 295.0 / 118;
        const auto across = summedWeights(kPage.width, (px + 0.5) * lengthX, lengthX);
        const auto down = summedWeights(kPage.height, (py + 0.5) * lengthY, lengthY);
        double black = 0;
        double red = 0;
        for (std::size_t y = 0; y < kPage.height; ++y) {
            for (std::size_t x = 0; x < kPage.width; ++x) {
                const double weight = across[x] * down[y];
                black += page.isInked(page.black, x, y) ? weight : 0;
                red += page.isInked(page.red, x, y) ? weight : 0;
            }
        }
        const std::size_t i = std::size_t(py) * size.width + std::size_t(px);
        // The sums go in steps of a sixtieth.
        EXPECT_NEAR(picture.black[i], 255 * black, 2) << px << ' ' << py;
        EXPECT_NEAR(picture.red[i], 255 * red, 2) << px << ' ' << py;
    }
}

/// How far a pixel of `length` dots can be off the middle over stripes of one dot each, away from
/// the edges: stripes are waves of 4 / (pi n) of half the range for odd n, of which a window of
/// r dots, moved over as many, leaves (sin(pi n r / 2) / (pi n r / 2))^2. Below two dots the second
/// window takes all.
double leftOfStripes(double length)
{
    const double pi = std::acos(-1.0);
    double left = 0;
    for (int n = 1; n < 20 && length > 2; n += 2) {
        const double angle = pi * n * length / 2;
        left += 127.5 * 4 / (pi * n) * std::pow(std::sin(angle) / angle, 2);
    }
    return left;
}

TEST(DotAverage, FinestPatternsOfDotsLeaveNoPattern)
{
    // Every second row, column or place.
    const Extent page{300, 300};
    const DotPage patterns[] = {pageOf(page, [](auto x, auto) { return x % 2 == 0; }),
                                pageOf(page, [](auto, auto y) { return y % 2 == 0; }),
                                pageOf(page, [](auto x, auto y) { return (x + y) % 2 == 0; })};
    for (const std::size_t pixels :
         {290, 271, 250, 201, 160, 150, 149, 133, 120, 100, 77, 41, 19}) {
        const double length = 300.0 / double(pixels);
        const double bound = leftOfStripes(length) + 1;
        for (const DotPage &pattern : patterns) {
            const Picture picture = averaged(pattern, {pixels, pixels});
            for (std::size_t y = 2; y + 2 < pixels; ++y) {
                for (std::size_t x = 2; x + 2 < pixels; ++x) {
                    ASSERT_NEAR(picture.at(x, y), 127.5, bound) << pixels << ' ' << x << ' ' << y;
                }
            }
        }
    }
}

/// The root mean square of the difference to `level`, away from the edges, after the mean of
/// squares of `side` pixels.
double unevenness(const Picture &picture, double level, std::size_t side)
{
    double sum = 0;
    std::size_t count = 0;
    const std::size_t edge = picture.size.width / 8;
    for (std::size_t y = edge; y + side + edge < picture.size.height; y += side) {
        for (std::size_t x = edge; x + side + edge < picture.size.width; x += side) {
            double mean = 0;
            for (std::size_t i = 0; i < side * side; ++i) {
                mean += picture.at(x + i % side, y + i / side);
            }
            sum += std::pow(mean / double(side * side) - level, 2);
            ++count;
        }
    }
    return std::sqrt(sum / double(count));
}

TEST(DotAverage, TintsOfAllMethodsLookEvenAndHaveTheirTone)
{
    const Extent page{512, 512};
    for (const HalftoneMethod method :
         {HalftoneMethod::Binary, HalftoneMethod::Dither, HalftoneMethod::ErrorDiffusion}) {
        for (const int tone : {16, 43, 64, 85, 100, 128, 170, 192, 205, 240}) {
            const DotPage dots = tintPage(method, tone, page);
            const double level =
                method == HalftoneMethod::Binary ? (tone < 128 ? 255 : 0) : 255 - tone;
            for (const std::size_t pixels : {400, 300, 256, 231, 170, 120, 64}) {
                const Picture picture = averaged(dots, {pixels, pixels});
                // Evenly spread dots are right to half a dot of those that a pixel sees, at least
                // two in each direction. Where pixels do not err together, as they do in a beat, a
                // square of 64 is right to an eighth of that. And a pixel is rounded.
                const double halfDot = 127.5 / std::pow(std::max(2.0, 512.0 / double(pixels)), 2);
                EXPECT_LE(unevenness(picture, level, 1), halfDot + 0.5)
                    << int(method) << ' ' << tone << ' ' << pixels;
                EXPECT_LE(unevenness(picture, level, 8), halfDot / 8 + 0.5)
                    << int(method) << ' ' << tone << ' ' << pixels;
            }
        }
    }
}

TEST(DotAverage, PixelsOfBothColoursAreNeverMoreThanFull)
{
    const DotPage page = randomPage(kPage, 4);
    for (const Extent size : kSizes) {
        const Picture picture = averaged(page, size);
        for (std::size_t i = 0; i < picture.black.size(); ++i) {
            ASSERT_LE(picture.black[i] + picture.red[i], 255);
        }
    }
}

TEST(DotAverage, RowsComeAsSoonAsNoLaterDotCounts)
{
    // Ten rows of dots for each row of pixels, which sees five more on either side.
    DotAverage average({8, 100}, {1, 10});
    std::size_t rows = 0;
    const auto count = [&rows](std::size_t, auto, auto) { ++rows; };
    const Bytes dots(1, 0xFF);
    for (std::size_t y = 1; y <= 100; ++y) {
        ASSERT_TRUE(average.row(dots, {}, count));
        EXPECT_EQ(rows, y == 100 ? 10 : y < 15 ? 0 : (y - 5) / 10) << y;
    }
}

TEST(DotAverage, RowOfAnotherLengthOrOneTooManyIsRefused)
{
    DotAverage average({9, 1}, {9, 1});
    std::size_t rows = 0;
    const auto count = [&rows](std::size_t, auto, auto) { ++rows; };
    EXPECT_EQ(average.rowBytes(), 2U);
    EXPECT_FALSE(average.row(Bytes(1), {}, count));
    EXPECT_FALSE(average.row(Bytes(3), {}, count));
    EXPECT_FALSE(average.row(Bytes(2), Bytes(1), count));
    EXPECT_EQ(rows, 0U);
    EXPECT_TRUE(average.row(Bytes(2), Bytes(2), count));
    EXPECT_EQ(rows, 1U);
    EXPECT_FALSE(average.row(Bytes(2), Bytes(2), count));
    EXPECT_EQ(rows, 1U);
}

TEST(DotAverage, PageWithoutDotsAndPictureWithoutPixelsAreHarmless)
{
    EXPECT_EQ(averaged(DotPage({0, 3}), {4, 2}).black, Bytes(8, 0));
    EXPECT_TRUE(averaged(randomPage({5, 3}, 5), {0, 0}).black.empty());
    DotAverage nothing({5, 0}, {3, 0});
    EXPECT_FALSE(nothing.row(Bytes(1), {}, [](std::size_t, auto, auto) {}));
}

TEST(DotAverage, MemoryDoesNotGrowWithTheRowsThatHaveGoneBy)
{
    for (const std::size_t length : {1000, 100000}) {
        const AverageWeights down(length, length / 3);
        EXPECT_LE(down.mostPixelsOfADot(), 3U);
    }
    EXPECT_EQ(AverageWeights(100, 100).mostPixelsOfADot(), 1U);
    EXPECT_EQ(AverageWeights(100, 400).mostPixelsOfADot(), 4U);
}

TEST(AverageWeights, WeightsOfEachPixelAreOneInAll)
{
    for (const std::size_t pixels : {1, 2, 99, 100, 101, 1000}) {
        const AverageWeights weights(100, pixels);
        for (std::size_t i = 0; i < pixels; ++i) {
            std::int32_t sum = 0;
            for (const std::int16_t weight : weights.of(i)) {
                sum += weight;
            }
            ASSERT_EQ(sum, AverageWeights::kOne) << pixels << ' ' << i;
            ASSERT_LE(weights.end(i), 100U);
        }
    }
}

} // namespace
