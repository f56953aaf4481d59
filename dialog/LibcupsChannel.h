// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsConnection.h"
#include "dialog/CupsServer.h"

namespace dialog {

/// A job on its way through libcups.
class LibcupsChannel : public JobChannel
{
public:
    static Result<std::unique_ptr<JobChannel>> open(const QString &server, const QString &printer,
                                                    CancelFlag &cancel);

    Result<int> createJob(const QString &title, const OptionChoices &options) override;
    std::optional<Failure> startDocument(const QString &name, const QString &mimeType) override;
    std::optional<Failure> write(const char *bytes, qint64 count) override;
    std::optional<Failure> finishDocument() override;
    std::optional<Failure> cancelJob() override;

private:
    struct InfoDeleter
    {
        void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
    };

    LibcupsChannel() = default;
    Failure lastFailure() const { return mConnection->lastFailure(mPrinter); }

    QString mServer;
    QString mPrinter;
    std::unique_ptr<CupsConnection> mConnection;
    DestinationPtr mDestination;
    std::unique_ptr<cups_dinfo_t, InfoDeleter> mInfo;
    int mJob = 0;
};

} // namespace dialog
