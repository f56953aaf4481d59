// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "imaging/ErrorDiffusion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

using namespace imaging;

namespace {

constexpr std::size_t kSide = 256;

PageSettings settingsFor(HalftoneMethod method)
{
    PageSettings settings;
    settings.method = method;
    return settings;
}

Bytes flatDots(HalftoneMethod method, int tone, std::size_t width = kSide,
               std::size_t height = kSide)
{
    return prepared(settingsFor(method), Bytes(width * height, std::uint8_t(tone)), width,
                    InputFormat::Gray8)
        .black;
}

double inkOfTone(int tone)
{
    return double(255 - tone) / 255.0;
}

TEST(Halftone, BinaryInksWhatIsDarkerThanTheMiddle)
{
    for (int tone = 0; tone < 256; ++tone) {
        ASSERT_EQ(inkedPart(flatDots(HalftoneMethod::Binary, tone, 150, 3)), tone < 128 ? 1 : 0);
    }
}

TEST(Halftone, BinaryTonesFirst)
{
    PageSettings settings = settingsFor(HalftoneMethod::Binary);
    settings.brightness = 4; // 25.5 of 255
    EXPECT_EQ(prepared(settings, {101, 102, 103}, 3, InputFormat::Gray8).black, (Bytes{1, 0, 0}));
    settings.brightness = 20;
    EXPECT_EQ(prepared(settings, {0, 1, 255}, 3, InputFormat::Gray8).black, (Bytes{0, 0, 0}));
    settings.brightness = -20;
    EXPECT_EQ(prepared(settings, {0, 254, 255}, 3, InputFormat::Gray8).black, (Bytes{1, 1, 0}));
}

TEST(Halftone, DitherInksEachTonesShareToTheDot)
{
    for (int tone = 0; tone < 256; ++tone) {
        // Four times the matrix, and in each of them at most one dot more or less.
        ASSERT_NEAR(inkedPart(flatDots(HalftoneMethod::Dither, tone)), inkOfTone(tone), 1.0 / 16384)
            << tone;
    }
}

TEST(Halftone, DiffusionInksEachTonesShare)
{
    for (int tone = 0; tone < 256; ++tone) {
        // What is not printed yet at the end is at most half a dot a column.
        ASSERT_NEAR(inkedPart(flatDots(HalftoneMethod::ErrorDiffusion, tone)), inkOfTone(tone),
                    0.5 / double(kSide))
            << tone;
    }
}

TEST(Halftone, DiffusionLosesNothingWhereTheWaysThroughARowEnd)
{
    // On a narrow page those places weigh most. At most one dot a column is still due at the end.
    const std::size_t rows = 2048;
    for (int tone = 1; tone < 255; tone += 6) {
        ASSERT_NEAR(inkedPart(flatDots(HalftoneMethod::ErrorDiffusion, tone, 96, rows)),
                    inkOfTone(tone), 1.0 / double(rows))
            << tone;
    }
}

TEST(Halftone, EachMethodInksTheTonedShare)
{
    PageSettings settings;
    settings.brightness = -7;
    settings.contrast = 12;
    for (const HalftoneMethod method : {HalftoneMethod::Dither, HalftoneMethod::ErrorDiffusion}) {
        settings.method = method;
        for (int value = 0; value < 256; value += 15) {
            const double tone = (value / 255.0 - 7.0 / 40.0 - 0.5) * (1.0 + 12.0 / 40.0) + 0.5;
            const Dots dots = prepared(settings, Bytes(kSide * kSide, std::uint8_t(value)), kSide,
                                       InputFormat::Gray8);
            ASSERT_NEAR(inkedPart(dots.black), 1.0 - std::clamp(tone, 0.0, 1.0), 0.004) << value;
        }
    }
}

/// The part inked of each column, of rows [from, to).
std::vector<double> inkOfColumns(const Bytes &dots, std::size_t width, std::size_t from,
                                 std::size_t to)
{
    std::vector<double> parts(width);
    for (std::size_t y = from; y < to; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            parts[x] += dots[y * width + x] / double(to - from);
        }
    }
    return parts;
}

TEST(Halftone, DiffusionBeginsWithDotsAtTheTopOfThePage)
{
    for (const int tone : {5, 15, 128, 240, 250}) {
        const Bytes dots = flatDots(HalftoneMethod::ErrorDiffusion, tone, 2048, 16);
        const std::span first = std::span(dots).first(2048 * 8);
        const double rare = std::min(inkOfTone(tone), 1.0 - inkOfTone(tone));
        EXPECT_NEAR(inkedPart(first), inkOfTone(tone), rare * 0.2) << tone;
    }
}

TEST(Halftone, DiffusionBeginsWithDotsBelowWhite)
{
    for (const int tone : {15, 128, 240}) {
        const std::size_t width = 2048;
        Bytes page(width * 20, 255);
        page.resize(width * 28, std::uint8_t(tone));
        const Dots dots =
            prepared(settingsFor(HalftoneMethod::ErrorDiffusion), page, width, InputFormat::Gray8);
        const std::span grey = std::span(dots.black).subspan(width * 20);
        const double rare = std::min(inkOfTone(tone), 1.0 - inkOfTone(tone));
        EXPECT_NEAR(inkedPart(grey), inkOfTone(tone), rare * 0.2) << tone;
    }
}

TEST(Halftone, DiffusionKeepsToneAtTheSidesAndWherePartsMeet)
{
    const std::size_t width = 512;
    const std::size_t height = 2048;
    for (const int tone : {32, 100, 128, 200, 240}) {
        const Bytes dots = flatDots(HalftoneMethod::ErrorDiffusion, tone, width, height);
        const std::vector<double> columns = inkOfColumns(dots, width, 0, height);
        for (std::size_t x = 0; x < width; x += 4) {
            const double strip =
                (columns[x] + columns[x + 1] + columns[x + 2] + columns[x + 3]) / 4;
            ASSERT_NEAR(strip, inkOfTone(tone), 0.01) << tone << " at " << x;
        }
    }
}

TEST(Halftone, DiffusionTreatsAllPlacesOfABlockAlike)
{
    // Pixels are taken in blocks of 8; dots that prefer one of them would draw fine lines.
    const std::size_t width = 512;
    const std::size_t height = 2048;
    for (const int tone : {10, 60, 245}) {
        const Bytes dots = flatDots(HalftoneMethod::ErrorDiffusion, tone, width, height);
        const std::vector<double> columns = inkOfColumns(dots, width, 0, height);
        const double rare = std::min(inkOfTone(tone), 1.0 - inkOfTone(tone));
        std::array<double, 8> places{};
        for (std::size_t x = 0; x < width; ++x) {
            places[x % 8] += columns[x] * 8 / double(width);
        }
        for (const double place : places) {
            EXPECT_NEAR(place, inkOfTone(tone), rare * 0.04) << tone;
        }
    }
}

TEST(Halftone, DiffusionDrawsNoLineOfDotsAtTheSidesOfThePage)
{
    const std::size_t width = 128;
    const std::size_t height = 6000;
    for (const int tone : {10, 245}) {
        const Bytes dots = flatDots(HalftoneMethod::ErrorDiffusion, tone, width, height);
        const std::vector<double> columns = inkOfColumns(dots, width, 0, height);
        const double rare = std::min(inkOfTone(tone), 1.0 - inkOfTone(tone));
        EXPECT_NEAR(columns.front(), inkOfTone(tone), rare * 0.2) << tone;
        EXPECT_NEAR(columns.back(), inkOfTone(tone), rare * 0.2) << tone;
    }
}

TEST(Halftone, ASmallGreyAreaOnWhiteHasItsTone)
{
    const std::size_t width = 640;
    for (const int tone : {60, 128, 200}) {
        Bytes page(width * 640, 255);
        for (std::size_t i = 0; i < page.size(); ++i) {
            const bool inside = i % width % 16 < 8 && i / width % 16 < 8;
            page[i] = inside ? std::uint8_t(tone) : page[i];
        }
        const Dots dots =
            prepared(settingsFor(HalftoneMethod::ErrorDiffusion), page, width, InputFormat::Gray8);
        EXPECT_NEAR(inkedPart(dots.black) * 4.0, inkOfTone(tone), 0.03) << tone;
    }
}

/// Error diffusion with one set of weights for all tones (R. W. Floyd, L. Steinberg, 1976), rows in
/// turns from the left and from the right; to compare with.
Bytes classicDots(int tone)
{
    std::vector<double> errors(kSide + 2);
    Bytes dots(kSide * kSide);
    for (std::size_t y = 0; y < kSide; ++y) {
        std::vector<double> next(kSide + 2);
        const int step = y % 2 == 0 ? 1 : -1;
        int x = step > 0 ? 0 : int(kSide) - 1;
        for (std::size_t i = 0; i < kSide; ++i, x += step) {
            const double sum = tone + errors[std::size_t(x + 1)];
            dots[y * kSide + std::size_t(x)] = sum < 127.5 ? 1 : 0;
            const double error = sum - (sum < 127.5 ? 0.0 : 255.0);
            errors[std::size_t(x + 1 + step)] += error * 7.0 / 16.0;
            next[std::size_t(x + 1 - step)] += error * 3.0 / 16.0;
            next[std::size_t(x + 1)] += error * 5.0 / 16.0;
            next[std::size_t(x + 1 + step)] += error * 1.0 / 16.0;
        }
        errors = next;
    }
    return dots;
}

/// Each place with its surroundings, near ones counting most: `weights` from the middle outwards.
std::vector<double> blurred(const std::vector<double> &ink, const std::vector<double> &weights,
                            std::size_t stride)
{
    std::vector<double> sums(ink.size());
    const std::size_t reach = (weights.size() - 1) * stride;
    for (std::size_t i = reach; i + reach < ink.size(); ++i) {
        sums[i] = ink[i] * weights[0];
        for (std::size_t k = 1; k < weights.size(); ++k) {
            sums[i] += (ink[i - k * stride] + ink[i + k * stride]) * weights[k];
        }
    }
    return sums;
}

/// How uneven dots look from a distance: the root mean square by which they differ from their tone
/// under a blur of `width` dots. Without the first rows.
double unevenness(const Bytes &dots, int tone, double width)
{
    const auto reach = std::size_t(std::ceil(3.0 * width));
    std::vector<double> weights;
    double sum = 0.0;
    for (std::size_t i = 0; i <= reach; ++i) {
        weights.push_back(std::exp(-double(i * i) / (2.0 * width * width)));
        sum += weights.back() * (i == 0 ? 1.0 : 2.0);
    }
    for (double &weight : weights) {
        weight /= sum;
    }
    const std::vector<double> ink(dots.begin(), dots.end());
    const std::vector<double> soft = blurred(blurred(ink, weights, 1), weights, kSide);
    double squares = 0.0;
    std::size_t count = 0;
    for (std::size_t y = 32 + reach; y + reach < kSide; ++y) {
        for (std::size_t x = reach; x + reach < kSide; ++x, ++count) {
            const double error = soft[y * kSide + x] - inkOfTone(tone);
            squares += error * error;
        }
    }
    return std::sqrt(squares / double(count));
}

TEST(Halftone, DiffusionIsMoreEvenThanWithOneSetOfWeights)
{
    for (const double width : {1.5, 3.0}) {
        double here = 0.0;
        double classic = 0.0;
        for (int tone = 5; tone < 255; tone += 10) {
            here += unevenness(flatDots(HalftoneMethod::ErrorDiffusion, tone), tone, width);
            classic += unevenness(classicDots(tone), tone, width);
        }
        EXPECT_LT(here, classic * 0.9) << width;
    }
}

TEST(Halftone, DiffusionWeightsLeaveNothingNegativeAndNothingToPureTones)
{
    const DiffusionTable &table = diffusionTable();
    for (int tone = 1; tone < 255; ++tone) {
        const DiffusionWeights weights = table.of(std::uint8_t(tone));
        EXPECT_GT(weights.ahead, 0);
        EXPECT_LE(weights.ahead + weights.behind, 128) << tone;
        // More would let errors grow beyond the room for them.
        EXPECT_LE(weights.ahead, 89) << tone;
        EXPECT_LT(weights.behind, 64) << tone;
        const DiffusionWeights negative = table.of(std::uint8_t(255 - tone));
        EXPECT_EQ(weights.ahead, negative.ahead);
        EXPECT_EQ(weights.behind, negative.behind);
    }
    for (const std::uint8_t tone : {std::uint8_t(0), std::uint8_t(255)}) {
        EXPECT_EQ(table.of(tone).ahead, 0);
        EXPECT_EQ(table.of(tone).behind, 0);
    }
}

TEST(Halftone, ErrorsThatAreDrivenTogetherStayWithinBounds)
{
    // Tones with the most unlike weights side by side, in stripes, checks and noise.
    std::mt19937 random(7);
    const std::size_t width = 200;
    for (int round = 0; round < 40; ++round) {
        const std::array<int, 4> tones{1 + int(random() % 10), 245 + int(random() % 10),
                                       80 + int(random() % 90), int(random() % 256)};
        Bytes page;
        for (std::size_t i = 0; i < width * 200; ++i) {
            const std::size_t choice = round % 2 == 0 ? (i % width + i / width) : random();
            page.push_back(std::uint8_t(tones[choice % (2 + std::size_t(round) % 3)]));
        }
        const PageSettings settings = settingsFor(HalftoneMethod::ErrorDiffusion);
        const Dots plain =
            prepared(settings, page, width, InputFormat::Gray8, ProcessorPath::Plain);
        const Dots fast = prepared(settings, page, width, InputFormat::Gray8);
        ASSERT_EQ(plain.black, fast.black);
        double expected = 0.0;
        for (const std::uint8_t tone : page) {
            expected += inkOfTone(tone) / double(page.size());
        }
        ASSERT_NEAR(inkedPart(plain.black), expected, 0.02);
    }
}

} // namespace
