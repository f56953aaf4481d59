// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsServer.h"

#include <QObject>

#include <memory>

namespace dialog {

/// Fetches one PPD in the background. Each object is good for one PPD.
class PpdFetch : public QObject
{
    Q_OBJECT

public:
    PpdFetch(std::shared_ptr<CupsServer> server, QString printer);

    /// In the worker: emits one of the signals, neither when it was cancelled.
    void run();
    void cancel() { mCancel.set(); }

Q_SIGNALS:
    void fetched(const QString &printer, const std::shared_ptr<dialog::PpdFile> &ppd);
    void failed(const QString &printer, const dialog::Failure &failure);

private:
    std::shared_ptr<CupsServer> mServer;
    QString mPrinter;
    CancelFlag mCancel;
};

/// Gets the PPDs of queues without keeping the interface thread waiting. A new request takes the
/// place of the one before, of which nothing is heard any more.
class PpdFetcher : public QObject
{
    Q_OBJECT

public:
    explicit PpdFetcher(std::shared_ptr<CupsServer> server, QObject *parent = nullptr);
    ~PpdFetcher() override;

    void fetch(const QString &printer);
    void cancel();

Q_SIGNALS:
    /// `ppd` is null when the queue has none and is printed to with the general settings.
    void fetched(const QString &printer, const std::shared_ptr<dialog::PpdFile> &ppd);
    void failed(const QString &printer, const dialog::Failure &failure);

private:
    std::shared_ptr<CupsServer> mServer;
    std::shared_ptr<PpdFetch> mFetch;
};

} // namespace dialog
