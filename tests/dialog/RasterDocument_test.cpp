// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSettings.h"
#include "dialog/PpdFile.h"
#include "dialog/RasterDocument.h"
#include "filter/GraphicsPpd.h"
#include "filter/SmallPpd.h"
#include "filter/TestRaster.h"
#include "tests/dialog/FullDisk.h"
#include "tests/dialog/TestDocuments.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace dialog;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// The small printer's label of 57 x 32 mm at 203 dpi.
constexpr QSize kDots(457, 254);

std::string graphicsPpd()
{
    return std::get<std::string>(filter::withGraphicsOptions(smallPpd(), filter::Colours::Black));
}

class RasterDocumentTest : public DocumentFolder
{
protected:
    void useScratchFolder()
    {
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("scratch")));
        qputenv("TMPDIR", folder.filePath(QStringLiteral("scratch")).toUtf8());
    }
    void TearDown() override { qunsetenv("TMPDIR"); }

    QStringList scratch() const
    {
        return QDir(folder.filePath(QStringLiteral("scratch")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    void open(const std::string &text)
    {
        auto opened =
            PpdFile::open(write(QStringLiteral("small.ppd"), QByteArray::fromStdString(text)));
        ASSERT_TRUE(opened) << opened.failure().text().toStdString();
        ppd = std::move(opened).value();
    }

    std::optional<DotPages> pagesOfJob(const QByteArray &document)
    {
        return DotPages::of(opened(document), ppd->file(), {QSizeF(162, 90), {}}, settings);
    }

    std::optional<RasterDocument> documentFor(const QByteArray &content, int copies = 1)
    {
        const auto pages = pagesOfJob(content);
        return pages ? RasterDocument::of(*pages, ppd->file(), copies) : std::nullopt;
    }

    static std::string bytesOf(const RasterDocument &document)
    {
        const auto device = document.render([](int, int) { return true; });
        EXPECT_TRUE(device) << device.failure().text().toStdString();
        std::string bytes;
        char block[1000];
        for (qint64 count = 1; count > 0;) {
            count = device.value()->read(block, sizeof block);
            bytes.append(block, std::size_t(count > 0 ? count : 0));
        }
        EXPECT_EQ(qint64(bytes.size()), device.value()->size());
        return bytes;
    }

    /// The pages that a job of two pages has, as "2x3": page 2 in three copies of the printer's.
    std::vector<std::string> order(const std::string &text, int copies)
    {
        open(text);
        const auto document = documentFor(pdfOfPages(2, QSizeF(162, 90)), copies);
        EXPECT_TRUE(document);
        std::vector<std::string> found;
        for (const TestPage &page : pagesOf(document ? bytesOf(*document) : std::string())) {
            const int grey = page.rows.at(page.rows.size() / 2 + kDots.width() / 2);
            found.push_back((std::abs(grey - greyOfPage(0)) <= 1 ? "1x" : "2x")
                            + std::to_string(page.header.NumCopies));
        }
        return found;
    }

    std::unique_ptr<PpdFile> ppd;
    JobSettings settings;
};

std::string withCollate(const char *standard)
{
    const std::string option = std::string("*OpenUI *Collate/Sets: PickOne\n*DefaultCollate: ")
        + standard + "\n*Collate False/No: \"\"\n*Collate True/Yes: \"\"\n*CloseUI: *Collate\n";
    return with(graphicsPpd(), "*DefaultFont", option + "*DefaultFont");
}

TEST_F(RasterDocumentTest, HasThePixelsOfThePageAndTheHeaderThatTheMarksAskFor)
{
    open(graphicsPpd());
    ppd->mark(QStringLiteral("Darkness"), QStringLiteral("20"));
    const QByteArray content = pdfOfPages(1, QSizeF(90, 162));
    const auto document = documentFor(content);
    ASSERT_TRUE(document);
    const std::vector<TestPage> pages = pagesOf(bytesOf(*document));
    ASSERT_EQ(pages.size(), 1U);
    const cups_page_header2_t &header = pages[0].header;
    EXPECT_EQ(header.cupsWidth, unsigned(kDots.width()));
    EXPECT_EQ(header.cupsHeight, unsigned(kDots.height()));
    EXPECT_EQ(header.cupsBitsPerPixel, 8U);
    EXPECT_EQ(header.cupsBytesPerLine, unsigned(kDots.width()));
    EXPECT_EQ(header.cupsColorSpace, CUPS_CSPACE_SW);
    EXPECT_EQ(header.HWResolution[0], 203U);
    EXPECT_EQ(header.cupsCompression, 66U);
    EXPECT_EQ(header.NumCopies, 1U);
    const auto band = pagesOfJob(content)->pixels(0).band(0);
    ASSERT_TRUE(band);
    EXPECT_EQ(pages[0].rows, band.value().bytes);
}

TEST_F(RasterDocumentTest, LongPageComesWholeOutOfItsBands)
{
    open(with(with(graphicsPpd(), "*ImageableArea w162h90/57 x 32 mm: \"0 0 162 90\"",
                   "*ImageableArea w162h90/57 x 3200 mm: \"0 0 162 9000\""),
              "*PaperDimension w162h90/57 x 32 mm: \"162 90\"",
              "*PaperDimension w162h90/57 x 3200 mm: \"162 9000\""));
    const QByteArray content = pdfOfPages(1, QSizeF(162, 9000));
    auto pages = pagesOfJob(content);
    ASSERT_TRUE(pages);
    pages->sheet = {};
    const auto document = RasterDocument::of(*pages, ppd->file(), 1);
    ASSERT_TRUE(document);
    const SheetPixels pixels = pages->pixels(0);
    ASSERT_GT(pixels.bands(), 2);
    std::vector<std::uint8_t> expected;
    for (int i = 0; i < pixels.bands(); ++i) {
        const auto band = pixels.band(i);
        ASSERT_TRUE(band);
        expected.insert(expected.end(), band.value().bytes.begin(), band.value().bytes.end());
    }
    const std::vector<TestPage> printed = pagesOf(bytesOf(*document));
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_EQ(printed[0].header.cupsHeight, unsigned(pages->form.dots.height()));
    EXPECT_EQ(printed[0].rows, expected);
}

TEST_F(RasterDocumentTest, PrinterThatMakesCopiesIsToldHowMany)
{
    EXPECT_THAT(
        order(with(graphicsPpd(), "*cupsModelNumber", "*cupsManualCopies: False\n*cupsModelNumber"),
              3),
        ElementsAre("1x3", "2x3"));
    EXPECT_THAT(order(graphicsPpd(), 1), ElementsAre("1x1", "2x1"));
}

TEST_F(RasterDocumentTest, PrinterThatMakesNoCopiesGetsEachPageAsOften)
{
    const std::string manual =
        with(graphicsPpd(), "*cupsModelNumber", "*cupsManualCopies: True\n*cupsModelNumber");
    EXPECT_THAT(order(manual, 3), ElementsAre("1x1", "1x1", "1x1", "2x1", "2x1", "2x1"));
    EXPECT_THAT(order(manual, 1), ElementsAre("1x1", "2x1"));
}

TEST_F(RasterDocumentTest, WholeSetsAreRepeatedHereForEveryPrinter)
{
    EXPECT_THAT(order(withCollate("True"), 2), ElementsAre("1x1", "2x1", "1x1", "2x1"));
    EXPECT_THAT(order(withCollate("False"), 2), ElementsAre("1x2", "2x2"));
}

TEST_F(RasterDocumentTest, LastPageIsFirstWhereThePpdSaysSo)
{
    EXPECT_THAT(order(with(graphicsPpd(), "*cupsModelNumber",
                           "*DefaultOutputOrder: Reverse\n*cupsModelNumber"),
                      2),
                ElementsAre("2x2", "1x2"));
}

TEST_F(RasterDocumentTest, OnlyPagesOfTheJobAreRendered)
{
    open(graphicsPpd());
    settings.setPages(QStringLiteral("2,4-"));
    const auto document = documentFor(pdfOfPages(5, QSizeF(162, 90)));
    ASSERT_TRUE(document);
    std::vector<int> greys;
    for (const TestPage &page : pagesOf(bytesOf(*document))) {
        greys.push_back(page.rows.at(page.rows.size() / 2 + kDots.width() / 2));
    }
    EXPECT_THAT(greys, ElementsAre(greyOfPage(1), greyOfPage(3), greyOfPage(4)));
}

TEST_F(RasterDocumentTest, QueueWithoutTheFilterGetsNone)
{
    open(with(graphicsPpd(), "*cupsPreFilter:", "*cupsSomething:"));
    EXPECT_TRUE(pagesOfJob(pdfOfPages(1)));
    EXPECT_FALSE(documentFor(pdfOfPages(1)));
    open(smallPpd());
    EXPECT_FALSE(pagesOfJob(pdfOfPages(1)));
}

TEST_F(RasterDocumentTest, MarksThatAskForOtherRasterGiveNone)
{
    // Code behind that of the colour mode, which somebody has written into the PPD.
    const std::string other = "*OpenUI *Finish/Finish: PickOne\n"
                              "*OrderDependency: 99999 PageSetup *Finish\n"
                              "*DefaultFinish: Plain\n*Finish Plain/Plain: "
                              "\"<</cupsBitsPerColor 1>>setpagedevice\"\n*CloseUI: *Finish\n";
    open(with(graphicsPpd(), "*DefaultFont", other + "*DefaultFont"));
    EXPECT_TRUE(pagesOfJob(pdfOfPages(1)));
    EXPECT_FALSE(documentFor(pdfOfPages(1)));
}

TEST_F(RasterDocumentTest, PageOfTooManyDotsGivesNone)
{
    open(with(graphicsPpd(), "HWResolution[203 203]", "HWResolution[3300 3300]"));
    // 7425 x 4125 dots, a page of which the label shows the middle.
    settings.setScaling(Scaling::ActualSize);
    EXPECT_TRUE(documentFor(pdfOfPages(1, QSizeF(162, 90))));
    EXPECT_FALSE(documentFor(pdfOfPages(1, QSizeF(500, 300))));
}

TEST_F(RasterDocumentTest, DamagedPageIsTheFailure)
{
    QFile file(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    open(graphicsPpd());
    useScratchFolder();
    const auto document = documentFor(file.readAll());
    ASSERT_TRUE(document);
    const auto device = document->render([](int, int) { return true; });
    ASSERT_FALSE(device);
    EXPECT_THAT(device.failure().why.toStdString(), HasSubstr("page 2 is damaged"));
    EXPECT_THAT(scratch(), testing::IsEmpty());
}

TEST_F(RasterDocumentTest, WhoStopsItGetsNothingAndLeavesNoFile)
{
    open(graphicsPpd());
    useScratchFolder();
    const auto document = documentFor(pdfOfPages(3));
    ASSERT_TRUE(document);
    std::vector<int> done;
    QStringList seen;
    const auto device = document->render([&](int bands, int all) {
        EXPECT_EQ(all, 3);
        seen += scratch();
        done.push_back(bands);
        return bands < 1;
    });
    ASSERT_FALSE(device);
    EXPECT_EQ(device.failure().kind, FailureKind::Cancelled);
    EXPECT_THAT(done, ElementsAre(0, 1));
    EXPECT_THAT(seen, testing::IsEmpty()) << "the file has no name";
    EXPECT_THAT(scratch(), testing::IsEmpty());
}

TEST_F(RasterDocumentTest, FullDiskIsToldWithTheFolder)
{
    open(graphicsPpd());
    useScratchFolder();
    const auto document = documentFor(pdfOfPages(1));
    ASSERT_TRUE(document);
    const FullDisk full(1000);
    const auto device = document->render([](int, int) { return true; });
    ASSERT_FALSE(device);
    EXPECT_THAT(device.failure().what.toStdString(), HasSubstr("scratch"));
    EXPECT_THAT(device.failure().why.toStdString(), HasSubstr("make room"));
}

TEST_F(RasterDocumentTest, FolderThatIsNotThereIsTold)
{
    open(graphicsPpd());
    qputenv("TMPDIR", "/nonexistent/scratch");
    const auto document = documentFor(pdfOfPages(1));
    ASSERT_TRUE(document);
    const auto device = document->render([](int, int) { return true; });
    ASSERT_FALSE(device);
    EXPECT_THAT(device.failure().text().toStdString(), HasSubstr("/nonexistent/scratch: "));
    EXPECT_THAT(device.failure().why.toStdString(), HasSubstr("No such file"));
}

} // namespace
