// SPDX-License-Identifier: Apache-2.0
#include "dialog/FolderPrinter.h"
#include "dialog/JobLog.h"
#include "support/QtPrinters.h"
#include "tests/dialog/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <thread>

using dialog::Failure;
using dialog::FailureKind;
using dialog::FolderPrinter;
using dialog::PrintDocument;
using dialog::PrintJob;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

PrintJob jobNamed(const QString &name, const QByteArray &bytes = "%PDF-1.4 label")
{
    PrintJob job;
    job.document = PrintDocument::fromBytes(bytes, QStringLiteral("application/pdf"), name);
    job.settings.setTitle(QStringLiteral("Jam \"best\""));
    job.settings.setCopies(2);
    job.settings.setPages(QStringLiteral("1-3,5"));
    job.settings.setLabelSize(dialog::LabelSize::custom(60, 100.5));
    job.settings.setChoice(QStringLiteral("CvBrightness"), QStringLiteral("-5"));
    return job;
}

PrintJob aJob()
{
    return jobNamed(QStringLiteral("label.pdf"));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class FolderPrinterTest : public testing::Test
{
protected:
    QStringList entries() const
    {
        return QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    dialog::FolderJob printed(const PrintJob &job)
    {
        const auto result = printer.print(job);
        EXPECT_TRUE(result) << result.failure().text().toStdString();
        return result ? result.value() : dialog::FolderJob{};
    }
    QString complaint(const PrintJob &job)
    {
        const auto result = printer.print(job);
        EXPECT_FALSE(result);
        return result ? QString() : result.failure().text();
    }
    QList<QByteArray> logLines() const
    {
        return contents(out + QStringLiteral("/jobs.log")).trimmed().split('\n');
    }

    QTemporaryDir folder;
    QString out = folder.filePath(QStringLiteral("out"));
    FolderPrinter printer{out};
};

TEST_F(FolderPrinterTest, JobHasDocumentSettingsAndALogLine)
{
    const auto job = printed(aJob());
    EXPECT_EQ(job.number, 1);
    EXPECT_EQ(job.document, out + QStringLiteral("/job-0001/label.pdf"));
    EXPECT_EQ(contents(job.document), QByteArray("%PDF-1.4 label"));
    EXPECT_THAT(entries(), ElementsAre(QStringLiteral("job-0001"), QStringLiteral("jobs.log")));
    ASSERT_EQ(logLines().size(), 1);
    EXPECT_TRUE(logLines()[0].endsWith(
        " job-0001 \"Jam \\\"best\\\"\" application/pdf 14 bytes copies=2 page-ranges=1-3,5 "
        "PageSize=Custom.60x100.5mm print-scaling=fit CvBrightness=-5"))
        << logLines()[0].toStdString();
}

TEST_F(FolderPrinterTest, SettingsAreReadBackAsTheyWere)
{
    const auto job = printed(aJob());
    EXPECT_TRUE(contents(job.settings).startsWith("<?xml"));
    const auto settings = FolderPrinter::readSettings(job.settings);
    ASSERT_TRUE(settings) << settings.failure().text().toStdString();
    EXPECT_EQ(settings.value(), aJob().settings);
}

TEST_F(FolderPrinterTest, SettingsThatAreNotThereOrDamagedAreNamed)
{
    const auto job = printed(aJob());
    EXPECT_FALSE(FolderPrinter::readSettings(out));
    EXPECT_FALSE(FolderPrinter::readSettings(out + QStringLiteral("/none.plist")));
    const auto other = FolderPrinter::readSettings(job.document);
    ASSERT_FALSE(other);
    EXPECT_EQ(other.failure().text(),
              job.document + QStringLiteral(": is no XML property list of settings"));
}

TEST_F(FolderPrinterTest, EveryJobGetsAFreshNumberAndNothingIsOverwritten)
{
    printed(aJob());
    ASSERT_TRUE(QDir(out).mkdir(QStringLiteral("job-0007")));
    EXPECT_EQ(printed(jobNamed(QStringLiteral("label.pdf"), "second")).number, 8);
    EXPECT_EQ(contents(out + QStringLiteral("/job-0001/label.pdf")), QByteArray("%PDF-1.4 label"));
    QFile file(out + QStringLiteral("/job-0009"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(printed(aJob()).number, 10);
    EXPECT_EQ(file.size(), 0);
    EXPECT_EQ(logLines().size(), 3);
}

TEST_F(FolderPrinterTest, ManyAtOnceGetNumbersOfTheirOwn)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([this] {
            for (int j = 0; j < 5; ++j) {
                EXPECT_TRUE(FolderPrinter(out).print(aJob()));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(entries().size(), 41);
    EXPECT_TRUE(entries().contains(QStringLiteral("job-0040")));
    EXPECT_EQ(logLines().size(), 40);
}

TEST_F(FolderPrinterTest, OddDocumentNamesBecomeOrdinaryFileNames)
{
    const auto fileName = [this](const QString &name) {
        return printed(jobNamed(name)).document.section(QLatin1Char('/'), -1);
    };
    EXPECT_EQ(fileName(QStringLiteral("../../etc/passwd")), QStringLiteral("passwd"));
    EXPECT_EQ(fileName(QStringLiteral("a\nb:c*?.pdf")), QStringLiteral("a_b_c__.pdf"));
    EXPECT_EQ(fileName(QStringLiteral("..")), QStringLiteral("document"));
    EXPECT_EQ(fileName(QString()), QStringLiteral("document"));
    EXPECT_EQ(fileName(QStringLiteral("-rf")), QStringLiteral("rf"));
    EXPECT_EQ(fileName(QStringLiteral("settings.plist")), QStringLiteral("document"));
    EXPECT_EQ(fileName(QStringLiteral("ラベル.pdf")), QStringLiteral("ラベル.pdf"));
    const QString longName = fileName(QStringLiteral("ä").repeated(300) + QStringLiteral(".pdf"));
    EXPECT_TRUE(longName.endsWith(QStringLiteral("ä.pdf")));
    EXPECT_EQ(longName.toUtf8().size(), 200);
}

TEST_F(FolderPrinterTest, FolderWithOddCharactersIsAFolderLikeAnyOther)
{
    out = folder.filePath(QStringLiteral("a b\n„ö“ %1 $HOME;*"));
    printer = FolderPrinter(out);
    printed(aJob());
    EXPECT_THAT(entries(), ElementsAre(QStringLiteral("job-0001"), QStringLiteral("jobs.log")));
}

TEST_F(FolderPrinterTest, FolderThatCannotBeMadeIsNamed)
{
    QFile file(out);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(complaint(aJob()), out + QStringLiteral(": cannot be made; choose another folder"));
    printer = FolderPrinter(QString());
    EXPECT_EQ(complaint(aJob()), QStringLiteral("Folder: choose the folder to print into"));
}

TEST_F(FolderPrinterTest, FolderThatCannotBeWrittenToIsNamed)
{
    printer = FolderPrinter(QStringLiteral("/proc"));
    EXPECT_EQ(complaint(aJob()),
              QStringLiteral("/proc: cannot be written to; choose another folder"));
}

TEST_F(FolderPrinterTest, DocumentThatCannotBeReadLeavesNothing)
{
    PrintJob job = aJob();
    job.document = PrintDocument::fromFile(QStringLiteral("/nonexistent/a.pdf"), {});
    EXPECT_EQ(complaint(job), QStringLiteral("a.pdf: cannot be read (there is no such file)"));
    EXPECT_THAT(entries(), IsEmpty());
}

TEST_F(FolderPrinterTest, SettingsThatCannotBeWrittenLeaveNothing)
{
    PrintJob job = aJob();
    job.settings.setValue(QString(QChar(1)), "bytes");
    EXPECT_EQ(complaint(job),
              QStringLiteral("Jam \"best\": the settings of the job cannot be written down"));
    EXPECT_THAT(entries(), IsEmpty());
}

TEST_F(FolderPrinterTest, FullDiskLeavesNothingHalfWritten)
{
    PrintJob job = jobNamed(QStringLiteral("label.pdf"), QByteArray(100000, 'x'));
    QString text;
    {
        const FullDisk full(65536);
        text = complaint(job);
    }
    EXPECT_TRUE(text.contains(QStringLiteral("label.pdf: cannot be written (")))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith(QStringLiteral("); choose another folder or make room")));
    EXPECT_THAT(entries(), IsEmpty());
}

TEST_F(FolderPrinterTest, LogThatIsFullTakesTheJobBackWithIt)
{
    printed(aJob());
    const QByteArray before = contents(out + QStringLiteral("/jobs.log"));
    QFile log(out + QStringLiteral("/jobs.log"));
    ASSERT_TRUE(log.open(QIODevice::Append));
    log.write(QByteArray(10000, 'x') + '\n');
    log.close();
    QString text;
    {
        const FullDisk full(10000 + static_cast<rlim_t>(before.size()) + 20);
        text = complaint(aJob());
    }
    EXPECT_TRUE(text.contains(QStringLiteral("jobs.log: cannot be written (")))
        << text.toStdString();
    EXPECT_THAT(entries(), ElementsAre(QStringLiteral("job-0001"), QStringLiteral("jobs.log")));
    EXPECT_EQ(log.size(), before.size() + 10001);
}

TEST_F(FolderPrinterTest, LogThatCannotBeWrittenIsNamedAndLeavesNothing)
{
    ASSERT_TRUE(QDir().mkpath(out + QStringLiteral("/jobs.log")));
    EXPECT_TRUE(complaint(aJob()).contains(QStringLiteral("jobs.log: cannot be written (")));
    EXPECT_THAT(entries(), ElementsAre(QStringLiteral("jobs.log")));
}

TEST(JobLog, TitleOfSeveralLinesStaysOnOneLine)
{
    PrintJob job = jobNamed(QStringLiteral("a\nb.pdf"));
    job.settings.setTitle({});
    EXPECT_TRUE(dialog::JobLog::line(QStringLiteral("job-0001"), job)
                    .contains(QStringLiteral("\"a b.pdf\"")));
}

} // namespace
