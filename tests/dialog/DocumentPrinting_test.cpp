// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"
#include "tests/dialog/TestDocuments.h"

#include <QBuffer>
#include <QImageReader>

#include <gmock/gmock.h>

using dialog::DocumentPages;
using dialog::PrintableDocument;

namespace {

class DocumentPrinting : public DocumentFolder
{
protected:
    PrintableDocument printable(const QByteArray &content)
    {
        const auto document = opened(content)->printable();
        EXPECT_TRUE(document);
        return document ? document.value() : PrintableDocument{};
    }

    std::shared_ptr<const DocumentPages> openedPdf(const QByteArray &content)
    {
        const PrintableDocument document = printable(content);
        EXPECT_EQ(document.mimeType, QStringLiteral("application/pdf"));
        return opened(document.data);
    }

    static void expectSize(const QSizeF &size, double width, double height)
    {
        EXPECT_NEAR(size.width(), width, 0.001);
        EXPECT_NEAR(size.height(), height, 0.001);
    }
};

TEST_F(DocumentPrinting, PdfIsSentAsItIs)
{
    const QByteArray pdf = pdfOfPages(2);
    EXPECT_EQ(printable(pdf).data, pdf);
    EXPECT_EQ(printable(pdf).mimeType, QStringLiteral("application/pdf"));
}

TEST_F(DocumentPrinting, PlainPicturesAreSentAsTheyAre)
{
    const QByteArray png = picture("png", {20, 10}, 300);
    EXPECT_EQ(printable(png).data, png);
    EXPECT_EQ(printable(png).mimeType, QStringLiteral("image/png"));
    const QByteArray jpeg = picture("jpeg", {20, 10}, 0);
    EXPECT_EQ(printable(jpeg).data, jpeg);
    EXPECT_EQ(printable(jpeg).mimeType, QStringLiteral("image/jpeg"));
}

TEST_F(DocumentPrinting, DrawingIsSentAsPdfOfTheSameSize)
{
    const auto pdf = openedPdf(svgDrawing());
    EXPECT_EQ(pdf->pageCount(), 1);
    expectSize(pdf->pageSize(0), 170.0787, 85.0394);
    const auto image = pdf->render(0, {60, 30});
    ASSERT_TRUE(image);
    EXPECT_EQ(image.value().pixelColor(15, 15), QColor(Qt::red));
    EXPECT_EQ(image.value().pixelColor(45, 15), QColor(Qt::white));
}

TEST_F(DocumentPrinting, DrawingReachesAllEdgesOfItsPdf)
{
    const auto pdf = openedPdf("<svg xmlns='http://www.w3.org/2000/svg' width='62.3mm' "
                               "height='29.7mm' viewBox='0 0 10 10' preserveAspectRatio='none'>"
                               "<rect width='10' height='10'/></svg>");
    const auto image = pdf->render(0, {623, 297});
    ASSERT_TRUE(image);
    for (const QPoint at : {QPoint(0, 150), QPoint(622, 150), QPoint(300, 0), QPoint(300, 296)}) {
        EXPECT_LT(image.value().pixelColor(at).red(), 100) << at.x() << ' ' << at.y();
    }
}

TEST_F(DocumentPrinting, DrawingKeepsItsProportionsInTheMiddleOfItsPage)
{
    const auto pdf = openedPdf("<svg xmlns='http://www.w3.org/2000/svg' width='60mm' height='30mm' "
                               "viewBox='0 0 10 10'><rect width='10' height='10'/></svg>");
    const auto image = pdf->render(0, {60, 30});
    ASSERT_TRUE(image);
    EXPECT_EQ(image.value().pixelColor(12, 15), QColor(Qt::white));
    EXPECT_EQ(image.value().pixelColor(18, 15), QColor(Qt::black));
    EXPECT_EQ(image.value().pixelColor(41, 15), QColor(Qt::black));
    EXPECT_EQ(image.value().pixelColor(47, 15), QColor(Qt::white));
}

TEST_F(DocumentPrinting, DrawingStaysADrawing)
{
    const QByteArray small = printable(svgDrawing()).data;
    EXPECT_FALSE(small.contains("/Subtype /Image"));
    EXPECT_LT(small.size(), 20'000);
}

TEST_F(DocumentPrinting, TiffIsSentAsPdfWithAllPagesAndPixels)
{
    const PrintableDocument document = printable(tiffOfTwoPages());
    EXPECT_TRUE(document.data.contains("/Subtype /Image"));
    EXPECT_FALSE(document.data.contains("/DCTDecode"));
    const auto pdf = opened(document.data);
    ASSERT_EQ(pdf->pageCount(), 2);
    expectSize(pdf->pageSize(0), 72, 144);
    expectSize(pdf->pageSize(1), 72, 36);
    EXPECT_EQ(pdf->render(0, {10, 20}).value().pixelColor(5, 10), QColor(Qt::black));
}

TEST_F(DocumentPrinting, TransparentPictureIsSentAsPdf)
{
    const auto pdf = openedPdf(picture("png", {300, 150}, 300, QColor(0, 0, 0, 0)));
    expectSize(pdf->pageSize(0), 72, 36);
    EXPECT_EQ(pdf->render(0, {20, 10}).value().pixelColor(10, 5), QColor(Qt::white));
}

TEST_F(DocumentPrinting, PictureOfDifferentDotsAcrossAndDownIsSentAsPdf)
{
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(5906);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.save(&buffer, "png"));
    const QSizeF size = openedPdf(png)->pageSize(0);
    EXPECT_NEAR(size.width(), 72, 0.01);
    EXPECT_NEAR(size.height(), 144, 0.02);
}

// A photograph whose camera was held upright: the right side of its pixels is the bottom.
QByteArray photographToTurn()
{
    QByteArray jpeg = picture("jpeg", {200, 100}, 100);
    const QByteArray note = QByteArray("\xff\xe1\0\x22"
                                       "Exif\0\0"
                                       "MM\0\x2a\0\0\0\x08",
                                       18)
        + QByteArray("\0\1"
                     "\1\x12\0\3\0\0\0\1\0\6\0\0"
                     "\0\0\0\0",
                     18);
    return jpeg.insert(2, note);
}

TEST_F(DocumentPrinting, PhotographIsUprightOnScreenAndOnPaper)
{
    const auto document = opened(photographToTurn());
    EXPECT_NEAR(document->pageSize(0).width(), 72, 0.01);
    EXPECT_NEAR(document->pageSize(0).height(), 144, 0.01);
    const auto pdf = openedPdf(photographToTurn());
    EXPECT_NEAR(pdf->pageSize(0).width(), 72, 0.01);
    EXPECT_NEAR(pdf->pageSize(0).height(), 144, 0.01);
}

TEST_F(DocumentPrinting, DamagedPictureInsideOfATiffFileStopsThePrinting)
{
    // The pixels of the second picture become something else than packed pixels.
    QByteArray file = tiffOfTwoPages();
    const qsizetype second = picture("tiff", {100, 200}, 100).size();
    file.replace(second + 8, 40, QByteArray(40, '\xff'));
    const QString path = write(QStringLiteral("scan.tiff"), file);
    const auto document = DocumentPages::open(path);
    ASSERT_TRUE(document);
    const auto printed = document.value()->printable();
    ASSERT_FALSE(printed);
    EXPECT_EQ(printed.failure().why,
              QStringLiteral("has a damaged page; save or export it once more"));
}

} // namespace
