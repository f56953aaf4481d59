// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSender.h"
#include "dialog/LibcupsServer.h"
#include "support/CupsServerFixture.h"
#include "support/QtPrinters.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QThreadPool>

#include <gmock/gmock.h>

using dialog::CancelFlag;
using dialog::Failure;
using dialog::FailureKind;
using dialog::JobSender;
using dialog::LabelSize;
using dialog::LibcupsServer;
using dialog::PrintDocument;
using dialog::PrintJob;
using testing::Contains;
using testing::Not;
using testing::StartsWith;

namespace {

const QString kLab = QStringLiteral("Lab");
const QString kRaw = QStringLiteral("Raw");
const QString kPdf = QStringLiteral("application/pdf");
constexpr int kPatience = 20000;
constexpr int kCancelled = 7;
constexpr int kCompleted = 9;

QByteArray megabytes(int count)
{
    QByteArray bytes(count << 20, Qt::Uninitialized);
    QRandomGenerator(1).generate(reinterpret_cast<quint32 *>(bytes.begin()),
                                 reinterpret_cast<quint32 *>(bytes.end()));
    return bytes;
}

PrintJob jobFor(const QString &printer, const QByteArray &bytes = "%PDF-1.4 label")
{
    PrintJob job;
    job.printer = printer;
    job.document = PrintDocument::fromBytes(bytes, kPdf, QStringLiteral("label.pdf"));
    job.settings.setTitle(QStringLiteral("Jam & jelly"));
    return job;
}

class JobSenderTest : public testing::Test
{
protected:
    /// The job's number, or 0.
    int send(const PrintJob &job)
    {
        QSignalSpy done(&sender, &JobSender::sent);
        QObject::connect(&sender, &JobSender::failed, &done,
                         [this](const Failure &f) { failure = f; });
        EXPECT_TRUE(sender.send(job));
        waitUntilIdle();
        return done.isEmpty() ? 0 : done[0][0].toInt();
    }
    void waitUntilIdle()
    {
        QSignalSpy failed(&sender, &JobSender::failed);
        QSignalSpy sent(&sender, &JobSender::sent);
        const QDeadlineTimer deadline(kPatience);
        while (sender.isBusy() && !deadline.hasExpired()) {
            sent.wait(20);
        }
        ASSERT_FALSE(sender.isBusy());
    }

    CupsServerFixture cups;
    std::shared_ptr<LibcupsServer> server = std::make_shared<LibcupsServer>(cups.address());
    JobSender sender{server};
    Failure failure;
};

TEST_F(JobSenderTest, ChoicesAndSettingsArriveExactly)
{
    cups.addQueue(kLab);
    PrintJob job = jobFor(kLab);
    job.settings.setCopies(3);
    job.settings.setPages(QStringLiteral("1-3,5"));
    job.settings.setLabelSize(LabelSize{QStringLiteral("DC62x29"), {}, 175.75, 82.2});
    job.settings.setChoice(QStringLiteral("CvBrightness"), QStringLiteral("-5"));
    job.settings.setChoice(QStringLiteral("CvHalftonePattern"), QStringLiteral("Dither"));
    const int number = send(job);
    ASSERT_GT(number, 0) << failure.text().toStdString();
    const auto arrived = cups.arrived(number);
    EXPECT_EQ(arrived.arguments[2], QStringLiteral("Jam & jelly"));
    EXPECT_EQ(arrived.arguments[3], QStringLiteral("3"));
    for (const char *option : {"page-ranges=1-3,5", "PageSize=DC62x29", "CvBrightness=-5",
                               "CvHalftonePattern=Dither", "print-scaling=fit"}) {
        EXPECT_THAT(arrived.options(), Contains(QString::fromLatin1(option)));
    }
    EXPECT_EQ(cups.waitForJobState(number, kCompleted), kCompleted);
}

TEST_F(JobSenderTest, OwnSizeArrivesInMillimetres)
{
    cups.addQueue(kLab);
    PrintJob job = jobFor(kLab);
    job.settings.setLabelSize(LabelSize::custom(60, 100.5));
    job.settings.setScaling(dialog::Scaling::ActualSize);
    const auto options = cups.arrived(send(job)).options();
    EXPECT_THAT(options, Contains(QStringLiteral("PageSize=Custom.60x100.5mm")));
    EXPECT_THAT(options, Contains(QStringLiteral("print-scaling=none")));
}

TEST_F(JobSenderTest, DocumentOfSomeMegabytesArrivesByteForByte)
{
    cups.addQueue(kLab);
    const QByteArray bytes = megabytes(7) + "odd";
    QSignalSpy progressed(&sender, &JobSender::progressed);
    const int number = send(jobFor(kLab, bytes));
    ASSERT_GT(number, 0) << failure.text().toStdString();
    EXPECT_EQ(progressed.last()[0].toLongLong(), bytes.size());
    EXPECT_EQ(progressed.last()[1].toLongLong(), bytes.size());
    EXPECT_TRUE(cups.arrived(number).document == bytes);
}

TEST_F(JobSenderTest, QueueWithoutAPpdPrintsWithTheGeneralSettings)
{
    cups.addRawQueue(kRaw);
    PrintJob job = jobFor(kRaw);
    job.settings.setCopies(2);
    const int number = send(job);
    ASSERT_GT(number, 0) << failure.text().toStdString();
    EXPECT_EQ(cups.arrived(number).document, job.document.bytes);
    EXPECT_EQ(cups.arrived(number).arguments[3], QStringLiteral("2"));
}

TEST_F(JobSenderTest, TitleInAnyScriptArrives)
{
    cups.addRawQueue(kRaw);
    PrintJob job = jobFor(kRaw);
    job.settings.setTitle(QStringLiteral("ラベル „ä“; rm -rf $HOME"));
    EXPECT_EQ(cups.arrived(send(job)).arguments[2], job.settings.title());
}

TEST_F(JobSenderTest, QueueThatRejectsJobsIsNamedAndGetsNone)
{
    cups.addQueue(kLab);
    cups.administer(QStringLiteral("cupsreject"), {kLab});
    EXPECT_EQ(send(jobFor(kLab)), 0);
    EXPECT_EQ(failure.kind, FailureKind::Printer);
    EXPECT_EQ(failure.text(),
              QStringLiteral("Lab: does not accept jobs at the moment; choose another printer or "
                             "ask its owner"));
    EXPECT_EQ(cups.jobCount(), 0);
}

TEST_F(JobSenderTest, QueueThatIsGoneIsNamed)
{
    cups.addQueue(kLab);
    cups.removeQueue(kLab);
    EXPECT_EQ(send(jobFor(kLab)), 0);
    EXPECT_EQ(failure.kind, FailureKind::Printer);
    EXPECT_EQ(failure.what, kLab);
}

TEST_F(JobSenderTest, DocumentThatTheServerRefusesLeavesACancelledJob)
{
    cups.addQueue(kLab);
    PrintJob job = jobFor(kLab);
    job.document.mimeType = QStringLiteral("application/x-nobody-knows");
    EXPECT_EQ(send(job), 0);
    EXPECT_EQ(failure.kind, FailureKind::Job);
    EXPECT_EQ(failure.text(), QStringLiteral("Lab: does not take documents of this kind"));
    EXPECT_EQ(cups.jobCount(), 1);
    EXPECT_EQ(cups.waitForJobState(1, kCancelled), kCancelled);
}

TEST_F(JobSenderTest, UnreadableDocumentMakesNoJob)
{
    cups.addQueue(kLab);
    PrintJob job = jobFor(kLab);
    job.document = PrintDocument::fromFile(QStringLiteral("/nonexistent/label.pdf"), kPdf);
    EXPECT_EQ(send(job), 0);
    EXPECT_EQ(failure.kind, FailureKind::Document);
    EXPECT_EQ(cups.jobCount(), 0);
}

TEST_F(JobSenderTest, CancellingHalfwayTakesTheJobOffTheServer)
{
    cups.addQueue(kLab);
    CancelFlag cancel;
    const auto result = dialog::sendJob(*server, jobFor(kLab, megabytes(4)), cancel,
                                        [&cancel](qint64 sent, qint64 total) {
                                            if (sent > total / 2) {
                                                cancel.set();
                                            }
                                        });
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::Cancelled);
    EXPECT_EQ(result.failure().text(), QStringLiteral("Jam & jelly: stopped at your request"));
    EXPECT_EQ(cups.waitForJobState(1, kCancelled), kCancelled);
}

TEST_F(JobSenderTest, SenderThatGoesCancelsItsJob)
{
    cups.addQueue(kLab);
    auto gone = std::make_unique<JobSender>(server);
    QSignalSpy progressed(gone.get(), &JobSender::progressed);
    ASSERT_TRUE(gone->send(jobFor(kLab, megabytes(200))));
    ASSERT_TRUE(progressed.wait(kPatience));
    gone.reset();
    EXPECT_EQ(cups.waitForJobState(1, kCancelled), kCancelled);
}

TEST_F(JobSenderTest, CancellingEndsTheWaitForAFrozenServer)
{
    cups.addQueue(kLab);
    cups.freeze();
    ASSERT_TRUE(sender.send(jobFor(kLab)));
    QSignalSpy failed(&sender, &JobSender::failed);
    EXPECT_FALSE(failed.wait(200));
    sender.cancel();
    ASSERT_TRUE(failed.wait(kPatience));
    EXPECT_EQ(failed[0][0].value<Failure>().kind, FailureKind::Cancelled);
}

TEST_F(JobSenderTest, ServerThatDiesHalfwayIsNamedAndSoIsTheJob)
{
    cups.addQueue(kLab);
    CancelFlag cancel;
    bool isKilled = false;
    const auto result = dialog::sendJob(*server, jobFor(kLab, megabytes(8)), cancel,
                                        [this, &isKilled](qint64 sent, qint64 total) {
                                            if (!isKilled && sent > total / 2) {
                                                isKilled = true;
                                                cups.kill();
                                            }
                                        });
    ASSERT_TRUE(isKilled);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::Server);
    EXPECT_EQ(result.failure().what, QStringLiteral("Print server ") + cups.address());
    EXPECT_THAT(result.failure().why.toStdString(), StartsWith("broke off the connection ("));
    EXPECT_TRUE(
        result.failure().why.endsWith(QStringLiteral("; job 1 may still be on the print server")));
}

TEST_F(JobSenderTest, ServerThatIsNotThereIsNamed)
{
    cups.kill();
    EXPECT_EQ(send(jobFor(kLab)), 0);
    EXPECT_EQ(failure.kind, FailureKind::Server);
    EXPECT_THAT(failure.why.toStdString(), StartsWith("cannot be reached ("));
}

TEST_F(JobSenderTest, BusySenderTakesNoSecondJobButTheNextOneAfterwards)
{
    cups.addQueue(kLab);
    ASSERT_TRUE(sender.send(jobFor(kLab)));
    EXPECT_TRUE(sender.isBusy());
    EXPECT_FALSE(sender.send(jobFor(kLab)));
    waitUntilIdle();
    EXPECT_EQ(send(jobFor(kLab)), 2);
    EXPECT_EQ(cups.jobCount(), 2);
}

} // namespace
