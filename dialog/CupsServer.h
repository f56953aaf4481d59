// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CancelFlag.h"
#include "dialog/Failure.h"
#include "dialog/OptionChoice.h"
#include "dialog/PpdFile.h"
#include "dialog/Printer.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// The way of one job to a queue. The calls come in the order in which they stand here; after a
/// failure only cancelJob() may follow. One thread, which may wait for the network.
class JobChannel
{
public:
    virtual ~JobChannel();

    /// The number of the new job on the server.
    virtual Result<int> createJob(const QString &title, const OptionChoices &options) = 0;
    virtual std::optional<Failure> startDocument(const QString &name, const QString &mimeType) = 0;
    virtual std::optional<Failure> write(const char *bytes, qint64 count) = 0;
    virtual std::optional<Failure> finishDocument() = 0;

    /// Takes the created job off the server; works without the connection of the other calls.
    virtual std::optional<Failure> cancelJob() = 0;
};

/// The print server. Any thread but the interface thread: every call may wait for the network.
class CupsServer
{
public:
    virtual ~CupsServer();

    /// The queues, in the server's order, with the user's instances of them.
    virtual Result<std::vector<Printer>> printers(CancelFlag &cancel) = 0;

    /// The PPD of a queue, marked with the queue's own defaults; null when it has none.
    virtual Result<std::unique_ptr<PpdFile>> ppd(const QString &printer, CancelFlag &cancel) = 0;

    /// A channel for one job. Both arguments outlive it.
    virtual Result<std::unique_ptr<JobChannel>> openJob(const QString &printer,
                                                        CancelFlag &cancel) = 0;
};

} // namespace dialog
