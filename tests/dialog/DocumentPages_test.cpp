// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"
#include "tests/dialog/TestDocuments.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using dialog::DocumentKind;
using dialog::DocumentPages;
using testing::HasSubstr;

namespace {

class DocumentPagesTest : public DocumentFolder
{
protected:
    static std::string why(const QString &path) { return whyNot(path).toStdString(); }

    static QColor pixel(const DocumentPages &document, int page, const QSize &pixels, QPoint at)
    {
        const auto image = document.render(page, pixels);
        EXPECT_TRUE(image) << (image ? "" : qPrintable(image.failure().text()));
        return image ? image.value().pixelColor(at) : QColor();
    }

    static void expectSize(const QSizeF &size, double width, double height)
    {
        EXPECT_NEAR(size.width(), width, 0.05);
        EXPECT_NEAR(size.height(), height, 0.05);
    }
};

TEST_F(DocumentPagesTest, PdfHasPagesWithTheirSizes)
{
    const auto document = opened(pdfOfPages(3, {176, 283}));
    EXPECT_EQ(document->kind(), DocumentKind::Pdf);
    EXPECT_EQ(document->pageCount(), 3);
    expectSize(document->pageSize(2), 176, 283);
}

TEST_F(DocumentPagesTest, EveryPageIsRenderedInTheWishedSize)
{
    const auto document = opened(pdfOfPages(3));
    for (int page = 0; page < 3; ++page) {
        const auto image = document->render(page, {35, 57});
        ASSERT_TRUE(image);
        EXPECT_EQ(image.value().size(), QSize(35, 57));
        EXPECT_EQ(qRed(image.value().pixel(17, 28)), greyOfPage(page));
    }
}

TEST_F(DocumentPagesTest, TitleIsTheNameOfTheFile)
{
    const QString path = write(QStringLiteral("Crate label.pdf"), pdfOfPages(1));
    const auto document = DocumentPages::open(path);
    ASSERT_TRUE(document);
    EXPECT_EQ(document.value()->title(), QStringLiteral("Crate label.pdf"));
    EXPECT_EQ(document.value()->path(), path);
}

TEST_F(DocumentPagesTest, NameOfTheFileDoesNotTellTheKind)
{
    const auto document =
        DocumentPages::open(write(QStringLiteral("label.pdf"), picture("png", {9, 9}, 72)));
    ASSERT_TRUE(document);
    EXPECT_EQ(document.value()->kind(), DocumentKind::Png);
}

TEST_F(DocumentPagesTest, PicturesAreAsLargeAsTheirResolutionSays)
{
    for (const char *format : {"png", "jpeg", "tiff"}) {
        expectSize(opened(picture(format, {300, 150}, 72))->pageSize(0), 300, 150);
        expectSize(opened(picture(format, {300, 150}, 96))->pageSize(0), 225, 112.5);
        expectSize(opened(picture(format, {300, 150}, 300))->pageSize(0), 72, 36);
    }
}

TEST_F(DocumentPagesTest, PictureWithoutAUsableResolutionHasTwoHundredDots)
{
    expectSize(opened(picture("png", {300, 150}, 0))->pageSize(0), 108, 54);
    expectSize(opened(picture("png", {300, 150}, 1))->pageSize(0), 108, 54);
}

TEST_F(DocumentPagesTest, EveryPictureOfATiffFileIsAPage)
{
    const auto document = opened(tiffOfTwoPages());
    ASSERT_EQ(document->pageCount(), 2);
    expectSize(document->pageSize(0), 72, 144);
    expectSize(document->pageSize(1), 72, 36);
    EXPECT_EQ(pixel(*document, 0, {10, 20}, {5, 5}), QColor(Qt::black));
    EXPECT_EQ(pixel(*document, 1, {10, 5}, {5, 2}), QColor(Qt::white));
}

TEST_F(DocumentPagesTest, TransparencyIsShownOnWhite)
{
    const auto document = opened(picture("png", {20, 20}, 72, QColor(0, 0, 0, 0)));
    EXPECT_EQ(pixel(*document, 0, {40, 40}, {20, 20}), QColor(Qt::white));
    const auto half = opened(picture("png", {20, 20}, 72, QColor(0, 0, 0, 128)));
    EXPECT_NEAR(pixel(*half, 0, {40, 40}, {20, 20}).red(), 127, 1);
    const auto drawing = opened(svgDrawing());
    EXPECT_EQ(pixel(*drawing, 0, {60, 30}, {15, 15}), QColor(Qt::red));
    EXPECT_EQ(pixel(*drawing, 0, {60, 30}, {45, 15}), QColor(Qt::white));
}

TEST_F(DocumentPagesTest, DrawingIsAsLargeAsItStates)
{
    const auto document = opened(svgDrawing());
    EXPECT_EQ(document->kind(), DocumentKind::Svg);
    EXPECT_EQ(document->pageCount(), 1);
    expectSize(document->pageSize(0), 170.08, 85.04);
}

TEST_F(DocumentPagesTest, FineLinesOfAPictureSurviveBeingMadeSmaller)
{
    QImage lines(400, 400, QImage::Format_RGB32);
    lines.fill(Qt::white);
    for (int x = 0; x < 400; x += 8) {
        for (int y = 0; y < 400; ++y) {
            lines.setPixelColor(x, y, Qt::black);
        }
    }
    const QString path = folder.filePath(QStringLiteral("lines.png"));
    ASSERT_TRUE(lines.save(path));
    const auto document = DocumentPages::open(path);
    ASSERT_TRUE(document);
    const QColor grey = pixel(*document.value(), 0, {50, 50}, {25, 25});
    EXPECT_NEAR(grey.red(), 223, 12);
}

TEST_F(DocumentPagesTest, DocumentStaysAsItWasWhenItsFileChangesOrGoes)
{
    const QByteArray content = pdfOfPages(2);
    const QString path = write(QStringLiteral("label.pdf"), content);
    const auto document = DocumentPages::open(path);
    ASSERT_TRUE(document);
    write(QStringLiteral("label.pdf"), "changed");
    EXPECT_EQ(pixel(*document.value(), 1, {20, 20}, {10, 10}).red(), greyOfPage(1));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(pixel(*document.value(), 0, {20, 20}, {10, 10}).red(), greyOfPage(0));
    EXPECT_EQ(document.value()->printable().value().data, content);
}

TEST_F(DocumentPagesTest, TenThousandPagesAreTurnedWithoutReadingThemAll)
{
    const auto document = opened(pdfOfPages(10'000));
    ASSERT_EQ(document->pageCount(), 10'000);
    for (const int page : {9'999, 0, 5'000}) {
        EXPECT_EQ(pixel(*document, page, {20, 30}, {10, 10}).red(), greyOfPage(page));
    }
}

TEST_F(DocumentPagesTest, PageThatDoesNotExistIsNotRendered)
{
    const auto document = opened(pdfOfPages(2));
    EXPECT_TRUE(document->pageSize(2).isEmpty());
    EXPECT_TRUE(document->pageSize(-1).isEmpty());
    const auto image = document->render(2, {10, 10});
    ASSERT_FALSE(image);
    EXPECT_EQ(image.failure().why, QStringLiteral("has no page 3"));
}

TEST_F(DocumentPagesTest, AbsurdSizesAreNotRendered)
{
    const auto document = opened(pdfOfPages(1));
    EXPECT_FALSE(document->render(0, {0, 10}));
    EXPECT_FALSE(document->render(0, {1'000'000, 1'000'000}));
}

TEST_F(DocumentPagesTest, DamagedPageCostsThatPageAlone)
{
    const auto document = DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(document);
    ASSERT_EQ(document.value()->pageCount(), 3);
    EXPECT_TRUE(document.value()->render(0, {10, 20}));
    const auto damaged = document.value()->render(1, {10, 20});
    ASSERT_FALSE(damaged);
    EXPECT_EQ(damaged.failure().why, QStringLiteral("page 2 is damaged and cannot be shown"));
    EXPECT_TRUE(document.value()->render(2, {10, 20}));
}

TEST_F(DocumentPagesTest, FileThatIsNotThereIsNamed)
{
    EXPECT_EQ(why(folder.filePath(QStringLiteral("gone.pdf"))), "there is no such file");
    EXPECT_EQ(why(QString()), "there is no such file");
}

TEST_F(DocumentPagesTest, FolderIsNoDocument)
{
    EXPECT_EQ(why(folder.path()), "is a folder; choose a document in it");
}

TEST_F(DocumentPagesTest, PipeIsRefusedWithoutWaitingForIt)
{
    const QString path = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_EQ(why(path), "is not an ordinary file; choose a document");
}

TEST_F(DocumentPagesTest, FileThatCannotBeReadSaysWhy)
{
    // The memory of this process is an ordinary file that breaks off when it is read from its
    // start.
    EXPECT_THAT(why(QStringLiteral("/proc/self/mem")), HasSubstr("cannot be read ("));
}

TEST_F(DocumentPagesTest, FileTooLargeToHoldIsNotRead)
{
    const QString path = write(QStringLiteral("large.pdf"), "%PDF-1.4");
    ASSERT_EQ(truncate(path.toUtf8().constData(), DocumentPages::kLargestFile + 1), 0);
    EXPECT_EQ(why(path), "is larger than 512 MB; choose a smaller document");
}

TEST_F(DocumentPagesTest, EmptyFileIsNoDocument)
{
    EXPECT_EQ(why(write(QStringLiteral("empty.pdf"), {})), "is empty; choose another document");
}

TEST_F(DocumentPagesTest, TiffFileWhosePagesAreMissingIsNotPrintedWithoutThem)
{
    EXPECT_EQ(why(write(QStringLiteral("scan.tiff"), tiffOfTwoPages().chopped(40))),
              "is a damaged picture; save or export it once more");
}

TEST_F(DocumentPagesTest, OtherKindsAreRefused)
{
    EXPECT_EQ(why(write(QStringLiteral("letter.pdf"), "Dear customer,")),
              "is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these");
}

struct Broken
{
    const char *name;
    const char *file;
    const char *why;
};

void PrintTo(const Broken &broken, std::ostream *out)
{
    *out << broken.name;
}

class BrokenDocument : public testing::TestWithParam<Broken>
{ };

TEST_P(BrokenDocument, IsRefusedWithASentence)
{
    const auto document = DocumentPages::open(testDocument(QLatin1String(GetParam().file)));
    ASSERT_FALSE(document);
    EXPECT_THAT(document.failure().why.toStdString(), HasSubstr(GetParam().why));
    EXPECT_TRUE(document.failure().what.endsWith(QLatin1String(GetParam().file)));
}

const Broken kBroken[] = {
    {"EncryptedPdf", "encrypted.pdf",
     "is protected by a password; save a copy without one and print that"},
    {"TruncatedPdf", "truncated.pdf", "is a damaged PDF document; save or export it once more"},
    {"NoPagesPdf", "no-pages.pdf", "has no pages; choose another document"},
    {"TruncatedPng", "truncated.png", "is a damaged picture; save or export it once more"},
    {"HugeDimensionsPng", "huge-dimensions.png", "has 60000 x 60000 pixels, too many for a label"},
    {"ExternalEntitySvg", "external-entity.svg",
     "needs another file (file:///etc/hostname), which is not read"},
    {"ExternalPictureSvg", "external-picture.svg",
     "needs another file (photo.png), which is not read"},
    {"NetworkPictureSvg", "network-picture.svg",
     "needs another file (http://127.0.0.1:9/photo.png)"},
    {"EntitiesOfEntitiesSvg", "entities-of-entities.svg", "is a damaged SVG drawing"},
    {"RepeatedWithoutMeasureSvg", "repeated-without-measure.svg",
     "has too many repeated shapes; make the drawing simpler"},
    {"UnclosedSvg", "unclosed.svg", "is a damaged SVG drawing (line 3"},
};

INSTANTIATE_TEST_SUITE_P(Files, BrokenDocument, testing::ValuesIn(kBroken),
                         [](const auto &broken) { return std::string(broken.param.name); });

} // namespace
