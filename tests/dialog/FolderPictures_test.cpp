// SPDX-License-Identifier: Apache-2.0
#include "GraphicsBundle.h"
#include "dialog/DotPictures.h"
#include "dialog/FolderPrinter.h"
#include "dialog/JobSender.h"
#include "dialog/PageDots.h"
#include "dialog/PpdFile.h"
#include "support/LabelDocuments.h"
#include "tests/dialog/FullDisk.h"
#include "tests/dialog/TestDocuments.h"

#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QtEndian>

#include <gmock/gmock.h>

using namespace dialog;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int kPatience = 20000;

/// The folder printer with the sample printer's PPD.
class FolderPictures : public DocumentFolder
{
protected:
    FolderPictures()
    {
        auto opened = PpdFile::open(kSamplePpd);
        EXPECT_TRUE(opened);
        ppd = std::move(opened).value();
    }

    PrintJob jobOf(const QByteArray &content, const QString &name = QStringLiteral("label.pdf"))
    {
        document = opened(content);
        PrintJob job;
        job.document = PrintDocument::fromBytes(content, QStringLiteral("application/pdf"), name);
        job.settings = settings;
        const auto size = ppd->markedSize();
        EXPECT_TRUE(size);
        job.dots = DotPages::of(document, ppd->file(),
                                {QSizeF(size->width, size->height), ppd->margins(*size)}, settings);
        EXPECT_TRUE(job.dots);
        return job;
    }
    FolderJob printed(const PrintJob &job)
    {
        const auto result = FolderPrinter(out()).print(job);
        EXPECT_TRUE(result) << result.failure().text().toStdString();
        return result ? result.value() : FolderJob{};
    }
    Failure complaint(const PrintJob &job)
    {
        const auto result = FolderPrinter(out()).print(job);
        EXPECT_FALSE(result);
        return result ? Failure{} : result.failure();
    }

    QString out() const { return folder.filePath(QStringLiteral("out")); }
    QStringList leftOver() const
    {
        return QDir(out()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QString namesIn(const FolderJob &job)
    {
        return QDir(job.path).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' ');
    }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    /// How many dots of the picture are not those of the plate.
    static int wrongDots(const QString &path, const PageDots &dots,
                         const std::vector<std::uint8_t> &plate)
    {
        const QImage picture(path);
        EXPECT_EQ(picture.size(), dots.form.dots) << path.toStdString();
        if (picture.size() != dots.form.dots) {
            return -1;
        }
        int wrong = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const bool ink =
                    (plate[std::size_t(y) * dots.rowBytes + std::size_t(x) / 8] & (0x80 >> (x % 8)))
                    != 0;
                wrong += picture.pixel(x, y) != (ink ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
            }
        }
        return wrong;
    }

    PageDots dotsOfPage(const PrintJob &job, int page)
    {
        const auto dots = dotsOf(job.dots->pixels(page));
        EXPECT_TRUE(dots);
        return dots.value();
    }

    std::unique_ptr<PpdFile> ppd;
    JobSettings settings;
    std::shared_ptr<const DocumentPages> document;
};

QByteArray labelPdf(const QString &folder, bool hasRed)
{
    LabelLook look;
    look.pages = 2;
    look.hasRed = hasRed;
    QFile file(LabelDocuments(look).writePdf(folder));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST_F(FolderPictures, EachPageIsThereWithTheDotsOfThePreview)
{
    const PrintJob job = jobOf(labelPdf(folder.path(), false));
    const FolderJob done = printed(job);
    EXPECT_EQ(namesIn(done),
              QStringLiteral("label.pdf page-0001-black.png page-0002-black.png settings.plist"));
    for (int page = 0; page < 2; ++page) {
        const PageDots dots = dotsOfPage(job, page);
        EXPECT_EQ(wrongDots(done.path + QStringLiteral("/page-000%1-black.png").arg(page + 1), dots,
                            dots.black),
                  0);
    }
}

TEST_F(FolderPictures, RedHasAPlateOfItsOwn)
{
    ppd->mark(QStringLiteral("CvMultiColor"), QStringLiteral("CvMultiColorBlackRed"));
    settings.setPages(QStringLiteral("1"));
    const PrintJob job = jobOf(labelPdf(folder.path(), true));
    const FolderJob done = printed(job);
    EXPECT_EQ(namesIn(done),
              QStringLiteral("label.pdf page-0001-black.png page-0001-red.png settings.plist"));
    const PageDots dots = dotsOfPage(job, 0);
    EXPECT_EQ(wrongDots(done.path + QStringLiteral("/page-0001-black.png"), dots, dots.black), 0);
    EXPECT_EQ(wrongDots(done.path + QStringLiteral("/page-0001-red.png"), dots, dots.red), 0);
    EXPECT_TRUE(std::any_of(dots.red.begin(), dots.red.end(), [](int byte) { return byte != 0; }));
}

TEST_F(FolderPictures, OnlyPagesOfTheJobAreThereNumberedAsInTheDocument)
{
    settings.setPages(QStringLiteral("2,4-5"));
    EXPECT_EQ(namesIn(printed(jobOf(pdfOfPages(5)))),
              QStringLiteral("label.pdf page-0002-black.png page-0004-black.png "
                             "page-0005-black.png settings.plist"));
}

TEST_F(FolderPictures, FileHasOneBitForADotAndTheResolution)
{
    struct Case
    {
        const char *choice;
        quint32 across;
        quint32 down;
    };
    for (const Case &one : {Case{"300dpi", 11811, 11811}, Case{"300x600dpi", 11811, 23622}}) {
        ppd->mark(QStringLiteral("Resolution"), QLatin1String(one.choice));
        const FolderJob done = printed(jobOf(pdfOfPages(1)));
        const QByteArray png = contents(done.path + QStringLiteral("/page-0001-black.png"));
        ASSERT_TRUE(png.startsWith("\x89PNG\r\n\x1a\n"));
        EXPECT_EQ(png.mid(12, 4), "IHDR");
        EXPECT_EQ(png.at(24), 1) << "bits";
        const qsizetype physical = png.indexOf("pHYs");
        ASSERT_GT(physical, 0);
        EXPECT_EQ(qFromBigEndian<quint32>(png.constData() + physical + 4), one.across);
        EXPECT_EQ(qFromBigEndian<quint32>(png.constData() + physical + 8), one.down);
        EXPECT_EQ(png.at(physical + 12), 1) << "metres";
    }
}

TEST_F(FolderPictures, DocumentWithTheNameOfAPictureIsKeptBesideIt)
{
    for (const char *name : {"page-0001-black.png", "Page-0001-RED.png"}) {
        const QByteArray content = pdfOfPages(1);
        const FolderJob done = printed(jobOf(content, QLatin1String(name)));
        EXPECT_EQ(done.document, done.path + QStringLiteral("/document-") + QLatin1String(name));
        EXPECT_EQ(contents(done.document), content);
        EXPECT_FALSE(QImage(done.path + QStringLiteral("/page-0001-black.png")).isNull());
    }
}

TEST_F(FolderPictures, JobWithoutDotsHasNone)
{
    PrintJob job = jobOf(pdfOfPages(1));
    job.dots.reset();
    EXPECT_EQ(namesIn(printed(job)), QStringLiteral("label.pdf settings.plist"));
}

TEST_F(FolderPictures, DamagedPageLeavesNothing)
{
    const Failure why =
        complaint(jobOf(contents(testDocument(QStringLiteral("damaged-page.pdf")))));
    EXPECT_THAT(why.why.toStdString(), HasSubstr("page 2 is damaged"));
    EXPECT_THAT(leftOver(), IsEmpty());
}

TEST_F(FolderPictures, FullDiskIsToldAndLeavesNothing)
{
    PrintJob job = jobOf(labelPdf(folder.path(), false));
    job.document.bytes = "%PDF-1.4 short";
    const FullDisk full(3000);
    const Failure why = complaint(job);
    EXPECT_EQ(why.kind, FailureKind::Folder);
    EXPECT_THAT(why.what.toStdString(), HasSubstr("page-0001-black.png"));
    EXPECT_THAT(why.why.toStdString(), HasSubstr("choose another folder or make room"));
    EXPECT_THAT(leftOver(), IsEmpty());
}

TEST_F(FolderPictures, PageOfTooManyRowsIsToldWithAWayOut)
{
    PrintJob job = jobOf(picture("png", QSize(10, 10), 100));
    job.dots->form.dots.setHeight(DotPictures::kMostRows + 1);
    const Failure why = complaint(job);
    EXPECT_EQ(why.what, document->path());
    EXPECT_EQ(why.why,
              QStringLiteral("page 1 has too many dots for a PNG file; choose a shorter label or a "
                             "lower resolution"));
    EXPECT_THAT(leftOver(), IsEmpty());
}

TEST_F(FolderPictures, PageOfTooManyDotsIsToldWithAWayOut)
{
    PrintJob job = jobOf(pdfOfPages(1));
    job.dots->form.dots.setHeight(200'000);
    job.dots->form.resolution = QSize(30'000, 30'000);
    EXPECT_THAT(complaint(job).why.toStdString(),
                HasSubstr("choose a shorter label or a lower resolution"));
    EXPECT_THAT(leftOver(), IsEmpty());
}

TEST_F(FolderPictures, ProgressGoesToTheEndAndMayStopTheJob)
{
    const PrintJob job = jobOf(pdfOfPages(3));
    std::vector<int> done;
    const auto result = FolderPrinter(out()).print(job, [&done](int bands, int all) {
        EXPECT_EQ(all, 3);
        done.push_back(bands);
        return bands < 2;
    });
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::Cancelled);
    EXPECT_THAT(done, testing::ElementsAre(0, 1, 2));
    EXPECT_THAT(leftOver(), IsEmpty());
}

TEST_F(FolderPictures, CancelledInTheBackgroundLeavesNothing)
{
    JobSender sender(nullptr);
    QSignalSpy failed(&sender, &JobSender::failed);
    QObject::connect(&sender, &JobSender::progressed, &sender, &JobSender::cancel);
    ASSERT_TRUE(sender.sendInto(out(), jobOf(pdfOfPages(300))));
    EXPECT_TRUE(sender.isBusy());
    ASSERT_TRUE(failed.wait(kPatience));
    const auto why = failed.at(0).at(0).value<Failure>();
    EXPECT_EQ(why.kind, FailureKind::Cancelled);
    EXPECT_THAT(why.text().toStdString(), HasSubstr("label.pdf: stopped at your request"));
    EXPECT_THAT(leftOver(), IsEmpty());
}

} // namespace
