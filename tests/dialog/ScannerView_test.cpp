// SPDX-License-Identifier: Apache-2.0
#include "dialog/ScannerView.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using dialog::InkTones;
using dialog::ScannerLook;

namespace {

/// What a scanner sees of `paper`, each pixel of it as one.
QImage seen(const QImage &paper, int blur)
{
    const InkTones tones{[&](const QRect &part) -> dialog::Result<QImage> {
                             EXPECT_EQ(part, paper.rect());
                             return paper;
                         },
                         {1, 1}};
    // A rectangle that lies on pixels as it is; its bars are wide enough not to be enlarged.
    const auto view = dialog::scannerView(tones, QRectF(paper.rect()), 6, {0, blur});
    EXPECT_TRUE(view);
    return view ? view.value() : QImage();
}

QImage noise(const QSize &size)
{
    QImage image(size, QImage::Format_Grayscale8);
    QRandomGenerator random(11);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.scanLine(y)[x] = uchar(random.bounded(256));
        }
    }
    return image;
}

int mean(const QImage &grey, const QRect &part)
{
    int sum = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            sum += grey.constScanLine(y)[x];
        }
    }
    return sum / (part.width() * part.height());
}

class EachBlur : public testing::TestWithParam<int>
{ };

TEST_P(EachBlur, IsTheMeanOfTheNeighboursAndPaperAtTheEdges)
{
    const int blur = GetParam();
    const QImage paper = noise({31, 17});
    const QImage view = seen(paper, blur);
    ASSERT_EQ(view.size(), paper.size());
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
            const QRect around(x - (blur - 1) / 2, y - (blur - 1) / 2, blur, blur);
            const int wanted = paper.rect().contains(around) ? mean(paper, around) : 255;
            ASSERT_EQ(int(view.constScanLine(y)[x]), wanted) << x << ' ' << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ScannerView, EachBlur, testing::Values(1, 2, 3, 4, 5, 9, 17, 40));

/// How many pixels the view of so many dots has, whose bars are one dot wide.
qint64 pixelsSeenOf(const QSize &dots, const QSize &shape = {1, 1})
{
    const InkTones tones{[](const QRect &part) -> dialog::Result<QImage> {
                             QImage white(part.size(), QImage::Format_Grayscale8);
                             white.fill(Qt::white);
                             return white;
                         },
                         shape};
    const auto view = dialog::scannerView(tones, QRectF(QPointF(), dots), 1, {0, 1});
    EXPECT_TRUE(view);
    return qint64(view.value().width()) * view.value().height();
}

TEST(ScannerView, OfNarrowBarsIsEnlarged)
{
    EXPECT_EQ(pixelsSeenOf({100, 50}), 400 * 200);
    EXPECT_EQ(pixelsSeenOf({100, 50}, {1, 2}), 400 * 400);
}

TEST(ScannerView, IsNeverLargerThanReadBarcodesTakes)
{
    // The whole limit of the program is 64 million.
    for (const QSize &dots : {QSize(2000, 2000), QSize(3000, 3000), QSize(5999, 1500),
                              QSize(5999, 5999), QSize(1500, 5999)}) {
        const qint64 pixels = pixelsSeenOf(dots);
        EXPECT_LE(pixels, 48'000'000) << dots.width();
        EXPECT_GE(pixels, qint64(dots.width()) * dots.height()) << dots.width();
    }
    EXPECT_LE(pixelsSeenOf({2999, 5000}, {2, 1}), 48'000'000);
    EXPECT_GE(pixelsSeenOf({2999, 5000}, {2, 1}), 2999 * 5000 * 2);
}

} // namespace
