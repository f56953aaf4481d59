// SPDX-License-Identifier: Apache-2.0
#include "DotPreview.h"

#include <QScrollBar>

using namespace dialog;
using imaging::ColorMode;
using imaging::HalftoneMethod;

namespace {

TEST_F(DotPreview, FittedPageIsTheAverageOfItsDots)
{
    const auto document = picture();
    open(document);
    expectAverageOnScreen(plainDotsOf(request(document)), Plates::Both);
    // The whole label is there.
    EXPECT_EQ(fitted().dotRectangle(), fitted().sheetRectangle());
}

TEST_F(DotPreview, PaperStaysWhiteWhereThePrinterHasNoDots)
{
    // 40 dots of paper on the left and 20 above.
    Sheet sheet = sheetOf(form);
    form.dots -= QSize(80, 40);
    form.origin = QPointF(40 * 72 / 300.0, 20 * 72 / 300.0);
    sheet.margins = QMarginsF(9.6, 4.8, 9.6, 4.8);
    preview.setSheet(sheet, form);
    preview.setDocument(opened(pdfOfPages(1)));
    waitForPage();
    const QRectF label = fitted().sheetRectangle();
    const QRectF dots = fitted().dotRectangle();
    EXPECT_NEAR(dots.x() - label.x(), label.width() * 40 / 366, 1);
    EXPECT_NEAR(dots.y() - label.y(), label.height() * 20 / 591, 1);
    EXPECT_NEAR(dots.width(), label.width() * 286 / 366, 1.5);
    EXPECT_EQ(screen(fitted()).pixelColor((label.topLeft() + QPointF(2, 50)).toPoint()),
              QColor(Qt::white));
    preview.setZoom(2);
    waitForPage();
    large().horizontalScrollBar()->setValue(0);
    large().verticalScrollBar()->setValue(0);
    EXPECT_EQ(large().dotPixels().topLeft(), QPoint(16 + 80, 16 + 40));
}

TEST_F(DotPreview, AtEveryZoomEachDotIsItsPixels)
{
    const auto document = picture();
    open(document);
    const PageDots page = plainDotsOf(request(document));
    for (const int zoom : kDotZooms) {
        preview.setZoom(zoom);
        waitForPage();
        EXPECT_EQ(preview.zoom(), zoom);
        EXPECT_TRUE(large().isVisible());
        expectDotsOnScreen(page, QSize(zoom, zoom), Plates::Both);
    }
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotPreview, DotsThatAreNotSquareKeepTheirShape)
{
    form = dotForm({31, 50}, {300, 600});
    const auto document = picture();
    open(document);
    const PageDots page = plainDotsOf(request(document));
    EXPECT_NEAR(fitted().dotRectangle().width() / fitted().dotRectangle().height(), 31.0 / 50,
                0.01);
    for (const int zoom : {1, 3}) {
        preview.setZoom(zoom);
        waitForPage();
        expectDotsOnScreen(page, QSize(2 * zoom, zoom), Plates::Both);
    }
}

TEST_F(DotPreview, PlatesShowTheirDotsAlone)
{
    openInTwoColours();
    const auto document = picture();
    DotRequest wanted = request(document);
    const PageDots page = plainDotsOf(wanted);
    for (const auto &[name, plates] :
         {std::pair("redPlate", Plates::Red), std::pair("blackPlate", Plates::Black),
          std::pair("bothPlates", Plates::Both)}) {
        preview.setZoom(kFitted);
        QTest::mouseClick(&find<QAbstractButton>(name), Qt::LeftButton);
        waitForPage();
        expectAverageOnScreen(page, plates);
        preview.setZoom(2);
        waitForPage();
        expectDotsOnScreen(page, QSize(2, 2), plates);
    }
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotPreview, PlatesAreOfferedForTwoColoursOnly)
{
    open(picture());
    EXPECT_FALSE(find<QAbstractButton>("redPlate").isVisible());
    form.settings.colorMode = ColorMode::BlackRed;
    preview.setSheet(sheetOf(form), form);
    EXPECT_TRUE(find<QAbstractButton>("redPlate").isVisible());
    QTest::mouseClick(&find<QAbstractButton>("redPlate"), Qt::LeftButton);
    waitForPage();
    // Back in one colour, its dots are there.
    form.settings.colorMode = ColorMode::Monochrome;
    preview.setSheet(sheetOf(form), form);
    EXPECT_FALSE(find<QAbstractButton>("redPlate").isVisible());
    EXPECT_TRUE(find<QAbstractButton>("bothPlates").isChecked());
}

TEST_F(DotPreview, OtherSettingsShowOtherDotsAndRenderNothing)
{
    const auto document = picture();
    open(document);
    preview.setZoom(1);
    waitForPage();
    for (const HalftoneMethod method :
         {HalftoneMethod::Binary, HalftoneMethod::Dither, HalftoneMethod::ErrorDiffusion}) {
        form.settings.method = method;
        form.settings.contrast += 2;
        preview.setSheet(sheetOf(form), form);
        EXPECT_FALSE(preview.isUpToDate());
        waitForPage();
        expectDotsOnScreen(plainDotsOf(request(document)), QSize(1, 1), Plates::Both);
    }
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotPreview, LabelSmallerThanThePreviewStandsInItsMiddle)
{
    form = dotForm({10, 10});
    open(picture());
    preview.setZoom(1);
    waitForPage();
    const QRect dots = large().dotPixels();
    EXPECT_NEAR(dots.center().x(), large().viewport()->width() / 2, 1);
    EXPECT_NEAR(dots.center().y(), large().viewport()->height() / 2, 1);
    EXPECT_EQ(large().horizontalScrollBar()->maximum(), 0);
}

TEST_F(DotPreview, LongLabelIsFittedAndScrolledToItsEnd)
{
    form = dotForm({62, 1000});
    form.settings.method = HalftoneMethod::Dither;
    const auto document = picture();
    open(document);
    EXPECT_EQ(form.dots, QSize(732, 11811));
    EXPECT_GT(fitted().dotRectangle().height(), 300);
    preview.setZoom(1);
    waitForPage();
    large().verticalScrollBar()->setValue(large().verticalScrollBar()->maximum());
    const QRect dots = large().dotPixels();
    EXPECT_EQ(dots.height(), 11811);
    EXPECT_LT(dots.bottom(), large().viewport()->height());
    expectDotsOnScreen(plainDotsOf(request(document)), QSize(1, 1), Plates::Both);
}

} // namespace
