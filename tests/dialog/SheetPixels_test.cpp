// SPDX-License-Identifier: Apache-2.0
#include "dialog/SheetPixels.h"
#include "imaging/Grey.h"
#include "tests/dialog/TestDocuments.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QTransform>

#include <algorithm>

#include <gmock/gmock.h>

using dialog::DotForm;
using dialog::PixelBand;
using dialog::Scaling;
using dialog::Sheet;
using dialog::SheetPixels;
using imaging::ColorMode;

namespace {

// 72 dots an inch, so that a dot is a point.
DotForm form(const QSize &dots, ColorMode colours = ColorMode::BlackRed, const QPointF &origin = {})
{
    DotForm form;
    form.settings.colorMode = colours;
    form.resolution = QSize(72, 72);
    form.dots = dots;
    form.origin = origin;
    return form;
}

QByteArray png(const QImage &image, int dotsPerInch)
{
    QImage copy = image;
    copy.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    copy.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    copy.save(&buffer, "png");
    return bytes;
}

/// Every pixel another colour.
QImage chequered(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x * y) % 256));
        }
    }
    return image;
}

QImage asImage(const SheetPixels &pixels)
{
    const QSize size = pixels.form().dots;
    QImage image(size, QImage::Format_RGB32);
    for (int i = 0; i < pixels.bands(); ++i) {
        const auto band = pixels.band(i);
        EXPECT_TRUE(band) << band.failure().text().toStdString();
        const std::uint8_t *byte = band.value().bytes.data();
        for (int y = 0; y < band.value().rows; ++y) {
            for (int x = 0; x < size.width(); ++x, byte += 3) {
                image.setPixel(x, band.value().firstRow + y, qRgb(byte[0], byte[1], byte[2]));
            }
        }
    }
    return image;
}

class SheetPixelsTest : public DocumentFolder
{
protected:
    std::shared_ptr<const dialog::DocumentPages> sampleLabel()
    {
        QFile file(QStringLiteral(SOURCE_DIR "/resources/sample/sample-label.pdf"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return opened(file.readAll());
    }
};

TEST_F(SheetPixelsTest, PictureOfAsManyPixelsAsDotsGetsJustThese)
{
    const QImage image = chequered({50, 80});
    const Sheet sheet{QSizeF(60, 91), {}};
    const SheetPixels pixels(opened(png(image, 72)), 0, sheet, Scaling::ActualSize, form({60, 91}));
    EXPECT_EQ(asImage(pixels).copy(5, 6, 50, 80), image);
}

TEST_F(SheetPixelsTest, WhatNoPageCoversIsWhite)
{
    const SheetPixels pixels(opened(picture("png", {20, 40}, 72)), 0, {QSizeF(60, 90), {}},
                             Scaling::ActualSize, form({60, 90}));
    const QImage image = asImage(pixels);
    EXPECT_EQ(image.pixel(19, 25), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(20, 25), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(39, 64), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(39, 65), qRgb(255, 255, 255));
}

TEST_F(SheetPixelsTest, WidePageIsTurnedCounterClockwiseOnAHighLabel)
{
    const QImage image = chequered({80, 50});
    const SheetPixels pixels(opened(png(image, 72)), 0, {QSizeF(50, 80), {}}, Scaling::ActualSize,
                             form({50, 80}));
    EXPECT_EQ(asImage(pixels), image.transformed(QTransform().rotate(-90)));
}

TEST_F(SheetPixelsTest, DotsBeginWhereThePrinterReaches)
{
    const QImage image = chequered({50, 80});
    const Sheet sheet{QSizeF(50, 80), QMarginsF(4, 6, 4, 6)};
    const SheetPixels pixels(opened(png(image, 72)), 0, sheet, Scaling::ActualSize,
                             form({42, 68}, ColorMode::BlackRed, {4, 6}));
    EXPECT_EQ(asImage(pixels), image.copy(4, 6, 42, 68));
}

TEST_F(SheetPixelsTest, ResolutionMayDifferAcrossAndDown)
{
    DotForm fine = form({50, 160});
    fine.resolution = QSize(72, 144);
    const SheetPixels pixels(opened(picture("png", {30, 40}, 72)), 0, {QSizeF(50, 80), {}},
                             Scaling::ActualSize, fine);
    const QImage image = asImage(pixels);
    EXPECT_EQ(image.pixel(25, 39), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(25, 41), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(25, 118), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(25, 120), qRgb(255, 255, 255));
}

TEST_F(SheetPixelsTest, LinesOfAPictureStayWhereItShrinksInOneWayOnly)
{
    // Grey and black lines in turns; with pixels left out, one kind would be all that is left.
    QImage lines({40, 80}, QImage::Format_RGB32);
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 40; ++x) {
            lines.setPixel(x, y, y % 4 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    DotForm wide = form({80, 20});
    wide.resolution = QSize(144, 18);
    const SheetPixels pixels(opened(png(lines, 72)), 0, {QSizeF(40, 80), {}}, Scaling::Fit, wide);
    const QImage image = asImage(pixels);
    for (int y = 2; y < 18; ++y) {
        EXPECT_NEAR(qGray(image.pixel(40, y)), 191, 24) << y;
    }
}

TEST_F(SheetPixelsTest, OneColourGetsTheGreyOfEachPixel)
{
    const QImage image = chequered({50, 80});
    const auto document = opened(png(image, 72));
    const Sheet sheet{QSizeF(50, 80), {}};
    const SheetPixels grey(document, 0, sheet, Scaling::Fit, form({50, 80}, ColorMode::Monochrome));
    const auto band = grey.band(0);
    ASSERT_TRUE(band);
    ASSERT_EQ(band.value().bytes.size(), 50U * 80U);
    const QRgb pixel = image.pixel(31, 47);
    EXPECT_EQ(
        band.value().bytes[47 * 50 + 31],
        imaging::greyOf(unsigned(qRed(pixel)), unsigned(qGreen(pixel)), unsigned(qBlue(pixel))));
}

TEST_F(SheetPixelsTest, BandsCoverALongLabelWithoutGaps)
{
    DotForm longLabel = form({730, 11810}, ColorMode::Monochrome);
    longLabel.resolution = QSize(254, 254);
    const SheetPixels pixels(opened(picture("png", {730, 11810}, 254)), 0, {}, Scaling::ActualSize,
                             longLabel);
    ASSERT_GT(pixels.bands(), 1);
    int next = 0;
    for (int i = 0; i < pixels.bands(); ++i) {
        const auto band = pixels.band(i);
        ASSERT_TRUE(band);
        EXPECT_EQ(band.value().firstRow, next);
        EXPECT_LE(band.value().rows * 730, SheetPixels::kPixelsOfBand);
        next += band.value().rows;
        EXPECT_EQ(std::count(band.value().bytes.begin(), band.value().bytes.end(), 0),
                  band.value().rows * 730);
    }
    EXPECT_EQ(next, 11810);
}

// The lines between bands are where a part that is off by a pixel would show.
TEST_F(SheetPixelsTest, PdfInPartsIsThePdfAtOnce)
{
    const auto document = sampleLabel();
    const QSize size(731, 1181);
    const auto whole = document->render(0, size);
    ASSERT_TRUE(whole);
    for (const QRect &part :
         {QRect(0, 0, 731, 400), QRect(0, 400, 731, 781), QRect(101, 203, 307, 411)}) {
        const auto image = document->renderPart(0, size, part);
        ASSERT_TRUE(image);
        const QImage expected = whole.value().copy(part);
        int different = 0;
        int most = 0;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                const int by =
                    std::abs(qGray(image.value().pixel(x, y)) - qGray(expected.pixel(x, y)));
                different += by > 0;
                most = std::max(most, by);
            }
        }
        EXPECT_EQ(different, 0) << "by up to " << most;
    }
}

// The dark bars at the foot of the sample label.
TEST_F(SheetPixelsTest, BarsAndTypeOfAPdfHaveHardEdges)
{
    const SheetPixels pixels(sampleLabel(), 0, {}, Scaling::ActualSize,
                             form({176, 283}, ColorMode::Monochrome));
    const auto band = pixels.band(0);
    ASSERT_TRUE(band);
    int dark = 0;
    for (int y = 210; y < 255; ++y) {
        for (int x = 0; x < 176; ++x) {
            const int grey = band.value().bytes[std::size_t(y) * 176 + std::size_t(x)];
            EXPECT_TRUE(grey == 0 || grey == 255) << x << ", " << y << ": " << grey;
            dark += grey == 0;
        }
    }
    EXPECT_GT(dark, 1000);
}

TEST_F(SheetPixelsTest, ShapesOfADrawingHaveHardEdges)
{
    const QByteArray disc = "<svg xmlns='http://www.w3.org/2000/svg' width='40mm' height='40mm' "
                            "viewBox='0 0 40 40'><circle cx='20' cy='20' r='15'/></svg>";
    const SheetPixels pixels(opened(disc), 0, {}, Scaling::ActualSize,
                             form({113, 113}, ColorMode::Monochrome));
    const auto band = pixels.band(0);
    ASSERT_TRUE(band);
    const auto &bytes = band.value().bytes;
    const auto black = std::count(bytes.begin(), bytes.end(), 0);
    EXPECT_EQ(black + std::count(bytes.begin(), bytes.end(), 255), 113 * 113);
    EXPECT_NEAR(double(black), 3.1416 * 42.52 * 42.52, 60);
}

TEST_F(SheetPixelsTest, PdfPageOfTooManyPixelsIsRefusedWithASentence)
{
    const auto image = sampleLabel()->renderPart(0, {10'000, 10'001}, {0, 0, 100, 100});
    ASSERT_FALSE(image);
    EXPECT_THAT(image.failure().why.toStdString(), testing::HasSubstr("choose a lower resolution"));
}

TEST_F(SheetPixelsTest, DamagedPageIsToldInEveryBand)
{
    QFile file(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto document = opened(file.readAll());
    const SheetPixels pixels(document, 1, {QSizeF(60, 90), {}}, Scaling::Fit, form({60, 90}));
    const auto band = pixels.band(0);
    ASSERT_FALSE(band);
    EXPECT_EQ(band.failure().kind, dialog::FailureKind::Document);
    EXPECT_THAT(band.failure().why.toStdString(), testing::HasSubstr("page 2 is damaged"));
}

} // namespace
