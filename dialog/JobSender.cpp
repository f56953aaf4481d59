// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSender.h"

#include "dialog/FolderPrinter.h"
#include "dialog/NetworkThreads.h"

#include <QByteArray>
#include <QThreadPool>

namespace dialog {

namespace {

using Progress = JobSending::Progress;

Failure cancelledFailure(const PrintJob &job)
{
    return {FailureKind::Cancelled, job.title(), JobSender::tr("stopped at your request")};
}

std::optional<Failure> writeAll(JobChannel &channel, QIODevice &device, const PrintJob &job,
                                const CancelFlag &cancel, const Progress &progress)
{
    constexpr qint64 kBlock = 65536;
    const qint64 total = device.size();
    QByteArray block(kBlock, Qt::Uninitialized);
    qint64 sent = 0;
    for (;;) {
        if (cancel.isSet()) {
            return cancelledFailure(job);
        }
        const qint64 count = device.read(block.data(), kBlock);
        if (count < 0) {
            return Failure{FailureKind::Document, job.document.name,
                           JobSender::tr("cannot be read (%1)").arg(device.errorString())};
        }
        if (count == 0) {
            return {};
        }
        if (auto failure = channel.write(block.constData(), count)) {
            return failure;
        }
        sent += count;
        progress(sent, total);
    }
}

std::optional<Failure> sendDocument(JobChannel &channel, QIODevice &device, const PrintJob &job,
                                    const CancelFlag &cancel, const Progress &progress)
{
    if (auto failure = channel.startDocument(job.document.name, job.document.mimeType)) {
        return failure;
    }
    if (auto failure = writeAll(channel, device, job, cancel, progress)) {
        return failure;
    }
    return channel.finishDocument();
}

} // namespace

Result<int> sendJob(CupsServer &server, PrintJob job, CancelFlag &cancel, const Progress &progress)
{
    // Of the way of rendered pages; the server is near.
    constexpr int kPartOfRendering = 9;
    const auto device = job.document.open([&](int done, int bands) {
        progress(qint64(done) * kPartOfRendering, qint64(bands) * (kPartOfRendering + 1));
        return !cancel.isSet();
    });
    if (!device) {
        const bool isCancelled = device.failure().kind == FailureKind::Cancelled;
        return isCancelled ? cancelledFailure(job) : device.failure();
    }
    const Progress sendingProgress =
        !job.document.pages ? progress : [&progress](qint64 sent, qint64 total) {
            progress(total * kPartOfRendering + sent, total * (kPartOfRendering + 1));
        };
    const auto channel = server.openJob(job.printer, cancel);
    if (!channel) {
        return channel.failure();
    }
    const auto number = channel.value()->createJob(job.title(), job.options());
    if (!number) {
        return number.failure();
    }
    auto failure = sendDocument(*channel.value(), *device.value(), job, cancel, sendingProgress);
    if (!failure) {
        return number.value();
    }
    if (channel.value()->cancelJob()) {
        failure->why +=
            JobSender::tr("; job %1 may still be on the print server").arg(number.value());
    }
    return *failure;
}

Result<int> printInto(const QString &folder, const PrintJob &job, const CancelFlag &cancel,
                      const Progress &progress)
{
    const auto done = FolderPrinter(folder).print(job, [&](int bands, int all) {
        progress(bands, all);
        return !cancel.isSet();
    });
    if (done) {
        return done.value().number;
    }
    const bool isCancelled = done.failure().kind == FailureKind::Cancelled;
    return isCancelled ? cancelledFailure(job) : done.failure();
}

JobSending::JobSending(Work work)
    : mWork(std::move(work))
{ }

void JobSending::run()
{
    const auto number =
        mWork(mCancel, [this](qint64 done, qint64 total) { Q_EMIT progressed(done, total); });
    if (number) {
        Q_EMIT sent(number.value());
    } else {
        Q_EMIT failed(number.failure());
    }
}

JobSender::JobSender(std::shared_ptr<CupsServer> server, QObject *parent)
    : QObject(parent)
    , mServer(std::move(server))
{ }

JobSender::~JobSender()
{
    cancel();
}

bool JobSender::send(const PrintJob &job)
{
    return start([server = mServer, job](CancelFlag &cancel, const Progress &progress) {
        return sendJob(*server, job, cancel, progress);
    });
}

bool JobSender::sendInto(const QString &folder, const PrintJob &job)
{
    return start([folder, job](const CancelFlag &cancel, const Progress &progress) {
        return printInto(folder, job, cancel, progress);
    });
}

bool JobSender::start(const JobSending::Work &work)
{
    if (isBusy()) {
        return false;
    }
    mSending = std::make_shared<JobSending>(work);
    connect(mSending.get(), &JobSending::progressed, this, &JobSender::progressed,
            Qt::QueuedConnection);
    connect(
        mSending.get(), &JobSending::sent, this,
        [this](int number) {
            mSending.reset();
            Q_EMIT sent(number);
        },
        Qt::QueuedConnection);
    connect(
        mSending.get(), &JobSending::failed, this,
        [this](const Failure &failure) {
            mSending.reset();
            Q_EMIT failed(failure);
        },
        Qt::QueuedConnection);
    networkThreads()->start([sending = mSending] { sending->run(); });
    return true;
}

void JobSender::cancel()
{
    if (mSending) {
        mSending->cancel();
    }
}

} // namespace dialog
