// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsServer.h"
#include "dialog/PrintJob.h"

#include <QObject>

#include <functional>
#include <memory>

namespace dialog {

/// Sends `job` and waits until the server has it, for callers that have no window to keep alive;
/// the number of the job on the server. A job that fails on its way is taken off the server again.
/// `progress` gets how much of the work is done, in units of its own. Pages are rendered before
/// there is a job.
Result<int> sendJob(CupsServer &server, PrintJob job, CancelFlag &cancel,
                    const std::function<void(qint64 done, qint64 total)> &progress);

/// Prints `job` into `folder`, in the same way; the number of its folder there.
Result<int> printInto(const QString &folder, const PrintJob &job, const CancelFlag &cancel,
                      const std::function<void(qint64 done, qint64 total)> &progress);

/// Prints one job in the background. Each object is good for one job.
class JobSending : public QObject
{
    Q_OBJECT

public:
    using Progress = std::function<void(qint64 done, qint64 total)>;
    /// Gives the number of the job.
    using Work = std::function<Result<int>(CancelFlag &cancel, const Progress &progress)>;

    explicit JobSending(Work work);

    /// In the worker: emits `progressed` now and then, and one of the others at the end.
    void run();
    void cancel() { mCancel.set(); }

Q_SIGNALS:
    void progressed(qint64 done, qint64 total);
    void sent(int job);
    void failed(const dialog::Failure &failure);

private:
    Work mWork;
    CancelFlag mCancel;
};

/// Sends jobs to the print server, or into a folder, one at a time, without keeping the interface
/// thread waiting. A sender that goes while it is busy cancels the job.
class JobSender : public QObject
{
    Q_OBJECT

public:
    explicit JobSender(std::shared_ptr<CupsServer> server, QObject *parent = nullptr);
    ~JobSender() override;

    bool isBusy() const { return mSending != nullptr; }

    /// False when it is busy.
    bool send(const PrintJob &job);
    /// The same, into `folder`.
    bool sendInto(const QString &folder, const PrintJob &job);

    /// `failed` follows with FailureKind::Cancelled, unless the job was sent already.
    void cancel();

Q_SIGNALS:
    void progressed(qint64 done, qint64 total);
    /// The server, or the folder, has the whole job; `job` is its number there.
    void sent(int job);
    void failed(const dialog::Failure &failure);

private:
    bool start(const JobSending::Work &work);

    std::shared_ptr<CupsServer> mServer;
    std::shared_ptr<JobSending> mSending;
};

} // namespace dialog
