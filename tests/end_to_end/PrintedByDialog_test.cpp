// SPDX-License-Identifier: Apache-2.0
// Documents that the dialog prints: what it shows is what reaches the printer, dot for dot.
#include "dialog/LibcupsServer.h"
#include "dialog/PrintController.h"
#include "end_to_end/DialogPrint.h"
#include "end_to_end/Dots.h"
#include "end_to_end/ScannedCodes.h"
#include "support/LabelDocuments.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using dialog::PageDots;
using testing::HasSubstr;

namespace {

constexpr int kPatience = 60000;

class DialogAndStockPrinter : public DialogPrint, public testing::WithParamInterface<StockPrinter>
{
protected:
    DialogAndStockPrinter() { addStockPrinter(printer()); }

    static QString printer() { return QLatin1String(GetParam().name); }
    static QStringList sized(const QStringList &options = {})
    {
        return QStringList{QStringLiteral("PageSize=") + QLatin1String(GetParam().size)} + options;
    }
};

TEST_P(DialogAndStockPrinter, PrintsTheDotsOfThePreviewForEveryKindOfDocument)
{
    const LabelDocuments documents(LabelLook{.pages = 2});
    const QStringList diffused =
        sized({QStringLiteral("CvBrightness=2"), QStringLiteral("CvContrast=-3")});
    const QString pdf = documents.writePdf(mFolder.path());
    expectPreviews(dialogJob(printer(), pdf, diffused),
                   {preview(printer(), pdf, diffused, 0), preview(printer(), pdf, diffused, 1)});

    const QStringList dithered = sized({QStringLiteral("CvHalftonePattern=Dither")});
    const QString png = documents.writePng(mFolder.path());
    expectPreviews(dialogJob(printer(), png, dithered), {preview(printer(), png, dithered)});

    const QStringList binary = sized({QStringLiteral("CvHalftonePattern=Binary")});
    const QString jpeg = documents.writeJpeg(mFolder.path());
    expectPreviews(dialogJob(printer(), jpeg, binary), {preview(printer(), jpeg, binary)});
}

TEST_P(DialogAndStockPrinter, GetsTheCommandsThatAnyProgramsJobGets)
{
    const QString pdf = LabelDocuments(LabelLook{.pages = 2}).writePdf(mFolder.path());
    const PrintedJob other = job(printer(), pdf, sized({QStringLiteral("copies=2")}));
    const PrintedJob own =
        dialogJob(printer(), pdf, sized(), {QStringLiteral("--copies"), QStringLiteral("2")});
    EXPECT_EQ(own.commands, other.commands);
    EXPECT_EQ(own.labels.size(), other.labels.size());
}

INSTANTIATE_TEST_SUITE_P(All, DialogAndStockPrinter, testing::ValuesIn(stockPrinters()),
                         [](const auto &printer) { return std::string(printer.param.name); });

class PrintedByDialog : public DialogPrint
{
protected:
    PrintedByDialog() { addStockPrinter(kPrinter); }

    PrintedJob print(const QString &document, const QStringList &options,
                     const QStringList &arguments = {})
    {
        return dialogJob(kPrinter, document, options, arguments);
    }
    PageDots shown(const QString &document, const QStringList &options, int page = 0) const
    {
        return preview(kPrinter, document, options, page);
    }

    /// As the window prints; the command line has no such choice.
    void printInOwnSize(const QString &document, const QString &label)
    {
        dialog::PrintController controller(
            std::make_shared<dialog::LibcupsServer>(mServer.address()), {}, {},
            dialog::PanelSet::Views::None);
        controller.setWishes({{QStringLiteral("PageSize"), label}});
        dialog::JobSettings settings;
        settings.setScaling(dialog::Scaling::ActualSize);
        dialog::Printer printer;
        printer.name = kPrinter;
        QSignalSpy ready(&controller, &dialog::PrintController::setupReady);
        QSignalSpy printed(&controller, &dialog::PrintController::printed);
        controller.choosePrinter(printer, settings);
        ASSERT_TRUE(ready.count() > 0 || ready.wait(kPatience));
        ASSERT_TRUE(controller.print(dialog::DocumentPages::open(document).value()));
        ASSERT_TRUE(printed.count() > 0 || printed.wait(kPatience));
    }

    const QString kPrinter = QStringLiteral("zebra");
    const QStringList kLabel{QStringLiteral("PageSize=w144h288")};
};

TEST_F(PrintedByDialog, OnlyTheChosenPagesArePrinted)
{
    const QString pdf = LabelDocuments(LabelLook{.pages = 4}).writePdf(mFolder.path());
    const PrintedJob got = print(pdf, kLabel, {QStringLiteral("--pages"), QStringLiteral("2,4")});
    expectPreviews(got, {shown(pdf, kLabel, 1), shown(pdf, kLabel, 3)});
}

TEST_F(PrintedByDialog, CopiesAreThePrinters)
{
    const QString pdf = LabelDocuments(LabelLook{.pages = 2}).writePdf(mFolder.path());
    const PrintedJob got = print(pdf, kLabel, {QStringLiteral("--copies"), QStringLiteral("3")});
    expectPreviews(got, {shown(pdf, kLabel, 0), shown(pdf, kLabel, 1)});
    EXPECT_THAT(got.commands, HasSubstr("^PQ3"));
}

TEST_F(PrintedByDialog, ALabelSizeOfOnesOwnIsPrintedAsShown)
{
    const QString pdf = LabelDocuments().writePdf(mFolder.path());
    const QStringList own{QStringLiteral("PageSize=Custom.57x83mm")};
    const PageDots expected = shown(pdf, own);
    EXPECT_NEAR(expected.form.dots.width(), 57 / 25.4 * 203, 1.5);
    EXPECT_NEAR(expected.form.dots.height(), 83 / 25.4 * 203, 1.5);
    expectPreviews(print(pdf, own), {expected});
}

TEST_F(PrintedByDialog, AFolderHasAPictureOfTheDotsThatAPrinterGets)
{
    const QString jpeg = LabelDocuments().writeJpeg(mFolder.path());
    const PrintedJob got = print(jpeg, kLabel);
    const QImage picture =
        pictureInFolder(kPrinter, jpeg, kLabel, QStringLiteral("page-0001-black.png"));
    ASSERT_EQ(picture.size(), LabelDocuments().look().dots);
    EXPECT_EQ(picture.depth(), 1);
    ASSERT_EQ(got.labels.size(), 1U);
    EXPECT_EQ(differencesFrom(picture, got.labels[0].dotsOf(std::size_t(picture.height()))), 0U);
}

TEST_F(PrintedByDialog, AWideDocumentIsTurnedAsShown)
{
    const LabelDocuments documents(LabelLook{.dots = {812, 406}, .squareModule = 2});
    const QString png = documents.writePng(mFolder.path());
    expectPreviews(print(png, kLabel), {shown(png, kLabel)});
}

TEST_F(PrintedByDialog, ALongLabelIsPrintedAsShown)
{
    const LabelDocuments documents(LabelLook{.dots = {406, 3248}});
    const QString pdf = documents.writePdf(mFolder.path());
    const QStringList tall{QStringLiteral("PageSize=Custom.2x16in"),
                           QStringLiteral("Resolution=300dpi")};
    const PageDots expected = shown(pdf, tall);
    // It is rendered in several bands.
    EXPECT_GT(expected.form.dots.width() * expected.form.dots.height(),
              dialog::SheetPixels::kPixelsOfBand);
    expectPreviews(print(pdf, tall), {expected});
}

TEST_F(PrintedByDialog, ADocumentInItsOwnSizeIsPrintedAsShown)
{
    const QString pdf = LabelDocuments().writePdf(mFolder.path());
    const QStringList larger{QStringLiteral("PageSize=w216h360")};
    const PageDots expected = preview(kPrinter, pdf, larger, 0, dialog::Scaling::ActualSize);
    EXPECT_NE(expected.black, shown(pdf, larger).black);
    printInOwnSize(pdf, QStringLiteral("w216h360"));
    expectPreviews(printedJob("zebra", arrived(kPrinter).toStdString()), {expected});
}

TEST_F(PrintedByDialog, AFinerPrinterIsGivenFinerDots)
{
    const QString pdf = LabelDocuments().writePdf(mFolder.path());
    const QStringList fine = QStringList(kLabel) << QStringLiteral("Resolution=300dpi");
    const PageDots expected = shown(pdf, fine);
    EXPECT_EQ(expected.form.dots, QSize(600, 1200));
    expectPreviews(print(pdf, fine), {expected});
}

TEST_F(PrintedByDialog, EverySettingIsPrintedAsShown)
{
    const QString jpeg = LabelDocuments().writeJpeg(mFolder.path());
    std::vector<PageDots> before;
    for (const char *settings : {"CvBrightness=-20", "CvBrightness=12 CvHalftonePattern=Binary",
                                 "CvContrast=20 CvHalftonePattern=Dither", "CvContrast=-20",
                                 "CvBrightness=9 CvContrast=-7 CvBiDiPrint=OFF CvRedLevel=3"}) {
        const QStringList options = kLabel + QString::fromLatin1(settings).split(u' ');
        const PageDots expected = shown(jpeg, options);
        expectPreviews(print(jpeg, options), {expected});
        for (const PageDots &other : before) {
            EXPECT_NE(expected.black, other.black) << settings;
        }
        before.push_back(expected);
    }
}

/// The label as it comes out of the printer.
QImage labelOf(const Dots &dots, const QSize &size)
{
    QImage label(size, QImage::Format_Grayscale8);
    const std::size_t rowBytes = std::size_t(size.width() + 7) / 8;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool ink = isInk(dots, rowBytes, std::size_t(x), std::size_t(y));
            label.scanLine(y)[x] = ink ? 0 : 255;
        }
    }
    return label;
}

TEST_F(PrintedByDialog, EveryCodeCanBeScannedOffTheLabel)
{
    const LabelDocuments documents;
    const QSize size = documents.look().dots;
    for (const QString &document :
         {documents.writePdf(mFolder.path()), documents.writePng(mFolder.path()),
          documents.writeJpeg(mFolder.path())}) {
        for (const char *method : {"Binary", "ErrorDiffusion"}) {
            const PrintedJob got = print(document,
                                         QStringList(kLabel) << QStringLiteral("CvHalftonePattern=")
                                                 + QLatin1String(method));
            ASSERT_EQ(got.labels.size(), 1U);
            const Dots dots = got.labels[0].dotsOf(std::size_t(size.height()));
            EXPECT_EQ(scanned(labelOf(dots, size), documents.codes()), textsOf(documents.codes()))
                << document.toStdString() << method;
        }
    }
}

TEST_F(PrintedByDialog, TextAndCodesOfAPictureAreDotForDotTheDocuments)
{
    const LabelDocuments documents;
    const QString png = documents.writePng(mFolder.path());
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        const PrintedJob got = print(png,
                                     QStringList(kLabel) << QStringLiteral("CvHalftonePattern=")
                                             + QLatin1String(method));
        ASSERT_EQ(got.labels.size(), 1U);
        EXPECT_EQ(wrongOutsideOfPhoto(got.labels[0], documents), 0U) << method;
    }
}

} // namespace
