// SPDX-License-Identifier: Apache-2.0
#include "CodeLabel.h"
#include "dialog/DotPlacement.h"
#include "dialog/SheetPixels.h"

#include <set>

using dialog::DotPlacement;
using dialog::placeOnDots;
using dialog::PrintedPage;
using dialog::Scaling;

namespace {

class WholeDots : public DocumentFolder
{
protected:
    PrintedPage label(const QSize &picture, const QSize &dots)
    {
        PrintedPage printed = onLabel(opened(CodeLabel(picture).png()), dots);
        printed.scaling = Scaling::WholeDots;
        return printed;
    }
    static DotPlacement placed(const PrintedPage &printed)
    {
        return placeOnDots(*printed.document, printed.page, printed.sheet, printed.scaling,
                           printed.form);
    }
};

TEST_F(WholeDots, AreAsManyAsFitForEachPixelInTheMiddleOfTheLabel)
{
    const DotPlacement placement = placed(label({100, 200}, {350, 650}));
    EXPECT_EQ(placement.dotsOfPixel, QSize(3, 3));
    EXPECT_EQ(placement.place, QRect(25, 25, 300, 600));
    EXPECT_FALSE(placement.turned);
}

TEST_F(WholeDots, KeepToThePrintableArea)
{
    PrintedPage printed = label({100, 200}, {350, 650});
    // 20 dots on either side leave 310 across, 30 at the top and at the bottom 590 down.
    printed.sheet.margins = QMarginsF(4.8, 7.2, 4.8, 7.2);
    const DotPlacement placement = placed(printed);
    EXPECT_EQ(placement.dotsOfPixel, QSize(2, 2));
    EXPECT_EQ(placement.place, QRect(75, 125, 200, 400));
}

TEST_F(WholeDots, HaveANumberForEachWayThatKeepsTheShape)
{
    PrintedPage printed = label({100, 200}, {350, 650});
    printed.form.resolution = QSize(300, 600);
    printed.form.dots = QSize(350, 1300);
    const DotPlacement placement = placed(printed);
    EXPECT_EQ(placement.dotsOfPixel, QSize(3, 6));
    EXPECT_EQ(placement.place, QRect(25, 50, 300, 1200));
}

TEST_F(WholeDots, OfAWidePictureLieTurned)
{
    const DotPlacement placement = placed(label({200, 100}, {350, 650}));
    EXPECT_TRUE(placement.turned);
    EXPECT_EQ(placement.place, QRect(25, 25, 300, 600));
    EXPECT_EQ(placement.inDots(QRectF(0, 0, 4.8, 2.4), QSizeF(48, 24)), QRectF(25, 565, 30, 60));
}

TEST_F(WholeDots, OfAPictureThatIsTooLargeAreThoseOfFit)
{
    PrintedPage printed = label({400, 700}, {350, 650});
    const DotPlacement placement = placed(printed);
    EXPECT_TRUE(placement.dotsOfPixel.isEmpty());
    printed.scaling = Scaling::Fit;
    EXPECT_EQ(placement.place, placed(printed).place);
}

TEST_F(WholeDots, OfADocumentWithoutPixelsAreThoseOfFit)
{
    PrintedPage printed = onLabel(opened(pdfOfPages(1)));
    printed.scaling = Scaling::WholeDots;
    const DotPlacement placement = placed(printed);
    EXPECT_TRUE(placement.dotsOfPixel.isEmpty());
    printed.scaling = Scaling::Fit;
    EXPECT_EQ(placement.place, placed(printed).place);
}

TEST_F(WholeDots, GiveEveryPixelOfAPictureItsOwnDotsWithoutShades)
{
    const CodeLabel picture = CodeLabel(QSize(100, 200)).with({10, 10}, "QR Code", "sharp", 1);
    PrintedPage printed = onLabel(opened(picture.png()), {350, 650});
    for (const Scaling scaling : {Scaling::WholeDots, Scaling::ActualSize}) {
        const int times = scaling == Scaling::WholeDots ? 3 : 1;
        const QPoint first = scaling == Scaling::WholeDots ? QPoint(25, 25) : QPoint(125, 225);
        const dialog::SheetPixels pixels(printed.document, 0, printed.sheet, scaling, printed.form);
        ASSERT_EQ(pixels.bands(), 1);
        const auto band = pixels.band(0);
        ASSERT_TRUE(band);
        const QImage whole = printed.document->render(0, QSize(100, 200)).value();
        int different = 0;
        for (int y = 0; y < 200 * times; ++y) {
            for (int x = 0; x < 100 * times; ++x) {
                const auto at = std::size_t(first.y() + y) * 350 + std::size_t(first.x() + x);
                different += int(band.value().bytes[at] != qRed(whole.pixel(x / times, y / times)));
            }
        }
        EXPECT_EQ(different, 0);
    }
}

} // namespace
