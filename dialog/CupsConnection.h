// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CancelFlag.h"
#include "dialog/Failure.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

#include <cups/cups.h>

namespace dialog {

struct DestinationDeleter
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using DestinationPtr = std::unique_ptr<cups_dest_t, DestinationDeleter>;

/// A connection to the print server that gives up when it is cancelled or the server is silent for
/// too long. Used by the thread that made it.
class CupsConnection
{
    Q_DECLARE_TR_FUNCTIONS(dialog::CupsConnection)

public:
    /// `server` as the environment variable CUPS_SERVER has it; empty takes the system's.
    /// `cancel` outlives the connection. A step may keep the server silent for `patience` seconds.
    static Result<std::unique_ptr<CupsConnection>> open(const QString &server, CancelFlag &cancel,
                                                        int patience = 60);

    ~CupsConnection();
    CupsConnection(const CupsConnection &) = delete;
    CupsConnection &operator=(const CupsConnection &) = delete;

    http_t *http() const { return mHttp; }

    /// Each step may keep the server silent anew.
    void beginStep() { mSilentTicks = 0; }

    /// Asks for an answer of any kind.
    std::optional<Failure> checkAnswers();

    /// A destination by its name, which may have an instance.
    Result<DestinationPtr> destination(const QString &printer);

    /// In words for the user: why the last call of libcups on this thread failed.
    Failure lastFailure(const QString &printer) const;

private:
    CupsConnection(CancelFlag &cancel, int patience);
    static int goesOnWaiting(http_t *http, void *connection);

    CancelFlag &mCancel;
    http_t *mHttp = nullptr;
    QString mServer;
    int mAllowedTicks;
    int mSilentTicks = 0;
};

/// Sets server and sign-in of libcups' calls on this thread. The name of the server in use.
QString useServer(const QString &server);

Failure cancelled(const QString &what);

} // namespace dialog
