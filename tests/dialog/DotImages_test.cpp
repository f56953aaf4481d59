// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotImages.h"
#include "imaging/DotAverage.h"

#include <gtest/gtest.h>

#include <random>

using namespace dialog;

namespace {

const QColor kRed(255, 0, 0);

/// A page of 37 x 29 dots, each of them paper, black or red by chance.
PageDots randomDots(imaging::ColorMode mode)
{
    std::mt19937 random(7);
    PageDots dots;
    dots.form.settings.colorMode = mode;
    dots.form.dots = QSize(37, 29);
    dots.form.resolution = QSize(300, 300);
    dots.rowBytes = 5;
    dots.black.resize(5 * 29);
    if (mode == imaging::ColorMode::BlackRed) {
        dots.red.resize(dots.black.size());
    }
    for (std::size_t y = 0; y < 29; ++y) {
        for (std::size_t x = 0; x < 37; ++x) {
            const auto bit = std::uint8_t(0x80U >> (x % 8));
            const auto kind = random() % 3;
            if (kind == 1) {
                dots.black[y * 5 + x / 8] |= bit;
            } else if (kind == 2 && !dots.red.empty()) {
                dots.red[y * 5 + x / 8] |= bit;
            }
        }
    }
    return dots;
}

QColor colourOf(const PageDots &dots, int x, int y, Plates plates)
{
    if (plates != Plates::Red && dots.isBlack(x, y)) {
        return Qt::black;
    }
    return plates != Plates::Black && dots.isRed(x, y) ? kRed : QColor(Qt::white);
}

class DotPlates : public testing::TestWithParam<Plates>
{
protected:
    const PageDots dots = randomDots(imaging::ColorMode::BlackRed);
};

INSTANTIATE_TEST_SUITE_P(Plates, DotPlates,
                         testing::Values(Plates::Both, Plates::Black, Plates::Red));

TEST_P(DotPlates, EnlargedDotsAreBlocksOfTheirColour)
{
    const QRect part(5, 3, 20, 25);
    const QImage image = enlargedDots(dots, part, QSize(3, 2), GetParam());
    ASSERT_EQ(image.size(), QSize(60, 50));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(image.pixelColor(x, y), colourOf(dots, 5 + x / 3, 3 + y / 2, GetParam()))
                << x << ' ' << y;
        }
    }
}

TEST_P(DotPlates, AveragedDotsInTheirOwnSizeAreThemselves)
{
    const QImage image = averagedDots(dots, dots.form.dots, GetParam());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(image.pixelColor(x, y), colourOf(dots, x, y, GetParam())) << x << ' ' << y;
        }
    }
}

TEST(DotImages, AveragedDotsLackTheLightThatTheirInkTakes)
{
    const PageDots dots = randomDots(imaging::ColorMode::BlackRed);
    const QImage image = averagedDots(dots, QSize(11, 10), Plates::Both);
    imaging::DotAverage average({37, 29}, {11, 10});
    int rows = 0;
    const auto compare = [&](std::size_t y, std::span<const std::uint8_t> black,
                             std::span<const std::uint8_t> red) {
        for (int x = 0; x < 11; ++x) {
            const QColor colour = image.pixelColor(x, int(y));
            // Black takes all colours, red leaves red.
            ASSERT_EQ(colour.red(), 255 - black[std::size_t(x)]);
            ASSERT_EQ(colour.green(), 255 - black[std::size_t(x)] - red[std::size_t(x)]);
            ASSERT_EQ(colour.blue(), colour.green());
        }
        ++rows;
    };
    for (std::size_t y = 0; y < 29; ++y) {
        ASSERT_TRUE(average.row(std::span(dots.black).subspan(y * 5, 5),
                                std::span(dots.red).subspan(y * 5, 5), compare));
    }
    EXPECT_EQ(rows, 10);
}

TEST(DotImages, PlatesOfAPageInBlackHaveNoRed)
{
    const PageDots dots = randomDots(imaging::ColorMode::Monochrome);
    EXPECT_EQ(enlargedDots(dots, QRect(0, 0, 37, 29), QSize(1, 1), Plates::Both),
              enlargedDots(dots, QRect(0, 0, 37, 29), QSize(1, 1), Plates::Black));
    const QImage red = averagedDots(dots, QSize(20, 20), Plates::Red);
    QImage paper(20, 20, QImage::Format_RGB32);
    paper.fill(Qt::white);
    EXPECT_EQ(red, paper);
}

TEST(DotImages, DotsKeepTheirShapeAsWellAsWholePixelsAllow)
{
    for (const int zoom : kDotZooms) {
        EXPECT_EQ(pixelsOfDot({300, 300}, zoom), QSize(zoom, zoom));
        EXPECT_EQ(pixelsOfDot({300, 600}, zoom), QSize(2 * zoom, zoom));
        EXPECT_EQ(pixelsOfDot({600, 300}, zoom), QSize(zoom, 2 * zoom));
    }
    // Four thirds.
    EXPECT_EQ(pixelsOfDot({300, 400}, 1), QSize(1, 1));
    EXPECT_EQ(pixelsOfDot({300, 400}, 3), QSize(4, 3));
    EXPECT_EQ(pixelsOfDot({300, 400}, 4), QSize(5, 4));
}

} // namespace
