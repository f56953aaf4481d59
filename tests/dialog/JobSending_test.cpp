// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSender.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using dialog::CancelFlag;
using dialog::CupsServer;
using dialog::Failure;
using dialog::FailureKind;
using dialog::JobChannel;
using dialog::OptionChoices;
using dialog::PrintDocument;
using dialog::Printer;
using dialog::PrintJob;
using dialog::Result;
using testing::ElementsAre;

namespace {

/// A server that writes down the steps of a job and fails at one of them.
struct Steps
{
    QString failing;
    bool isCancelRefused = false;
    QStringList done;
    QByteArray document;

    std::optional<Failure> take(const QString &step)
    {
        done.append(step);
        return step == failing ? std::optional(Failure{FailureKind::Job, step, step})
                               : std::nullopt;
    }
};

class StepChannel : public JobChannel
{
public:
    explicit StepChannel(Steps &steps)
        : mSteps(steps)
    { }

    Result<int> createJob(const QString &, const OptionChoices &) override
    {
        const auto failure = mSteps.take(QStringLiteral("create"));
        return failure ? Result<int>(*failure) : Result<int>(12);
    }
    std::optional<Failure> startDocument(const QString &, const QString &) override
    {
        return mSteps.take(QStringLiteral("start"));
    }
    std::optional<Failure> write(const char *bytes, qint64 count) override
    {
        mSteps.document.append(bytes, count);
        return mSteps.take(QStringLiteral("write"));
    }
    std::optional<Failure> finishDocument() override
    {
        return mSteps.take(QStringLiteral("finish"));
    }
    std::optional<Failure> cancelJob() override
    {
        mSteps.done.append(QStringLiteral("cancel"));
        return mSteps.isCancelRefused ? std::optional(Failure{}) : std::nullopt;
    }

private:
    Steps &mSteps;
};

class StepServer : public CupsServer
{
public:
    Result<std::vector<Printer>> printers(CancelFlag &) override { return Failure{}; }
    Result<std::unique_ptr<dialog::PpdFile>> ppd(const QString &, CancelFlag &) override
    {
        return Failure{};
    }
    Result<std::unique_ptr<JobChannel>> openJob(const QString &, CancelFlag &) override
    {
        if (const auto failure = steps.take(QStringLiteral("open"))) {
            return *failure;
        }
        return std::unique_ptr<JobChannel>(std::make_unique<StepChannel>(steps));
    }

    Steps steps;
};

class JobSendingTest : public testing::Test
{
protected:
    Result<int> send(const QByteArray &bytes = "label")
    {
        PrintJob job;
        job.document = PrintDocument::fromBytes(bytes, QStringLiteral("application/pdf"),
                                                QStringLiteral("label.pdf"));
        return dialog::sendJob(server, job, cancel, [](qint64, qint64) {});
    }
    QString stepsWhenFailingAt(const char *step)
    {
        server.steps.failing = QString::fromLatin1(step);
        const auto result = send();
        EXPECT_FALSE(result);
        EXPECT_EQ(result.failure().why, server.steps.failing);
        return server.steps.done.join(QLatin1Char(' '));
    }

    StepServer server;
    CancelFlag cancel;
};

TEST_F(JobSendingTest, DocumentGoesInBlocks)
{
    const QByteArray bytes = QByteArray("0123456789").repeated(15000);
    const auto number = send(bytes);
    ASSERT_TRUE(number);
    EXPECT_EQ(number.value(), 12);
    EXPECT_TRUE(server.steps.document == bytes);
    EXPECT_EQ(server.steps.done.join(QLatin1Char(' ')),
              QStringLiteral("open create start write write write finish"));
}

TEST_F(JobSendingTest, NoJobIsCancelledThatWasNotMade)
{
    EXPECT_EQ(stepsWhenFailingAt("open"), QStringLiteral("open"));
    server.steps.done.clear();
    EXPECT_EQ(stepsWhenFailingAt("create"), QStringLiteral("open create"));
}

TEST_F(JobSendingTest, EveryLaterFailureCancelsTheJob)
{
    EXPECT_EQ(stepsWhenFailingAt("start"), QStringLiteral("open create start cancel"));
    server.steps.done.clear();
    EXPECT_EQ(stepsWhenFailingAt("write"), QStringLiteral("open create start write cancel"));
    server.steps.done.clear();
    EXPECT_EQ(stepsWhenFailingAt("finish"),
              QStringLiteral("open create start write finish cancel"));
}

TEST_F(JobSendingTest, JobThatCannotBeCancelledIsNamed)
{
    server.steps.failing = QStringLiteral("finish");
    server.steps.isCancelRefused = true;
    const auto result = send();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().why,
              QStringLiteral("finish; job 12 may still be on the print server"));
}

TEST_F(JobSendingTest, CancelledBeforeTheFirstBlockSendsNone)
{
    cancel.set();
    const auto result = send();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::Cancelled);
    EXPECT_EQ(server.steps.done.join(QLatin1Char(' ')), QStringLiteral("open create start cancel"));
}

} // namespace
