// SPDX-License-Identifier: Apache-2.0
#include "preview/BriConView.h"

#include "tests/preview/PreviewFixture.h"

using testing::ElementsAre;

namespace {

std::vector<int> bytesOf(const preview::CIImage &image)
{
    std::vector<int> bytes;
    for (const char byte : image.bytes) {
        bytes.push_back(quint8(byte));
    }
    return bytes;
}

TEST(BriConViewPixelCopy, PutsAlphaFirstOfFourBytes)
{
    QImage source(1, 1, QImage::Format_RGBA8888);
    source.setPixelColor(0, 0, QColor(10, 20, 30, 40));
    const preview::CIImage copy = BriConView13_v300_::CIImageWithNSImage(source);
    EXPECT_THAT(bytesOf(copy), ElementsAre(40, 10, 20, 30));
    EXPECT_EQ(copy.format, preview::PixelFormat::ARGB8);
}

TEST(BriConViewPixelCopy, TakesNativeWordsAsRedGreenBlueAlpha)
{
    QImage source(1, 1, QImage::Format_ARGB32);
    source.setPixel(0, 0, qRgba(10, 20, 30, 40));
    EXPECT_THAT(bytesOf(BriConView13_v300_::CIImageWithNSImage(source)),
                ElementsAre(40, 10, 20, 30));
}

TEST(BriConViewPixelCopy, GivesThreeBytesFullAlphaAndDropsThePaddingOfRows)
{
    QImage source(3, 2, QImage::Format_RGB888);
    ASSERT_EQ(source.bytesPerLine(), 12);
    source.fill(QColor(1, 2, 3));
    source.setPixelColor(2, 0, QColor(10, 20, 30));
    source.setPixelColor(0, 1, QColor(40, 50, 60));
    const preview::CIImage copy = BriConView13_v300_::CIImageWithNSImage(source);
    EXPECT_EQ(copy.bytesPerRow, 12);
    EXPECT_THAT(bytesOf(copy),
                ElementsAre(255, 1, 2, 3, 255, 1, 2, 3, 255, 10, 20, 30, // upper row
                            255, 40, 50, 60, 255, 1, 2, 3, 255, 1, 2, 3));
}

TEST(BriConViewPixelCopy, TakesBlueGreenRedInTheRightOrder)
{
    QImage source(1, 1, QImage::Format_BGR888);
    source.fill(QColor(10, 20, 30));
    EXPECT_THAT(bytesOf(BriConView13_v300_::CIImageWithNSImage(source)),
                ElementsAre(255, 10, 20, 30));
}

TEST(BriConViewPixelCopy, CutsSizesToWholePoints)
{
    QImage source(41, 31, QImage::Format_RGBA8888);
    source.fill(Qt::red);
    source.setDevicePixelRatio(2);
    const preview::CIImage copy = BriConView13_v300_::CIImageWithNSImage(source);
    EXPECT_EQ(copy.width, 20);
    EXPECT_EQ(copy.height, 15);
    EXPECT_EQ(copy.bytesPerRow, 80);
    EXPECT_EQ(copy.bytes.size(), 80 * 15);
    EXPECT_EQ(quint8(copy.bytes.back()), 0);
    EXPECT_EQ(quint8(copy.bytes[copy.bytes.size() - 3]), 255);
}

TEST(BriConViewPixelCopy, OfNoPictureIsNoPicture)
{
    for (const auto &copy : {BriConView13_v300_::CIImageWithNSImage(QImage()),
                             BriConView13_v300_::CIImageWithNSImage2(QImage())}) {
        EXPECT_EQ(copy.width, 0);
        EXPECT_TRUE(copy.bytes.isEmpty());
        EXPECT_TRUE(preview::toQImage(copy).isNull());
    }
}

TEST(BriConViewPixelCopy, ForDrawingKeepsEveryPixelUnpremultiplied)
{
    QImage source(2, 1, QImage::Format_ARGB32);
    source.setPixel(0, 0, qRgba(200, 100, 0, 128));
    source.setPixel(1, 0, qRgba(1, 2, 3, 255));
    const preview::CIImage copy = BriConView13_v300_::CIImageWithNSImage2(source);
    EXPECT_EQ(copy.format, preview::PixelFormat::RGBA8);
    EXPECT_EQ(copy.bytesPerRow, 8);
    EXPECT_THAT(bytesOf(copy), ElementsAre(200, 100, 0, 128, 1, 2, 3, 255));
}

class BriConViewImage : public PreviewFixture
{
protected:
    std::unique_ptr<BriConView13_v300_> view =
        BriConView13_v300_::initWithFrame(QRectF(0, 0, 20, 20), bundle);
};

TEST_F(BriConViewImage, ImageOfASizeHasThePictureInItsLowerLeftCorner)
{
    const auto copy = BriConView13_v300_::CIImageWithNSImage(plain(QSize(2, 3), Qt::red));
    const QImage image = view->ImageWithCIImage(copy, QSizeF(4, 5));
    EXPECT_EQ(image.size(), QSize(4, 5));
    EXPECT_EQ(image.pixelColor(0, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(1, 2), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(2, 4).alpha(), 0);
    EXPECT_EQ(image.pixelColor(0, 1).alpha(), 0);
}

TEST_F(BriConViewImage, ImageOfASizeTakesOnlyThatPartOfThePicture)
{
    QImage source = plain(QSize(4, 4), Qt::red);
    source.setPixelColor(0, 3, Qt::blue);
    const auto copy = BriConView13_v300_::CIImageWithNSImage2(source);
    const QImage image = view->ImageWithCIImage(copy, QSizeF(2, 2));
    EXPECT_EQ(image.pixelColor(0, 1), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(1, 0), QColor(Qt::red));
    EXPECT_TRUE(view->ImageWithCIImage(copy, QSizeF(0, 5)).isNull());
}

} // namespace
