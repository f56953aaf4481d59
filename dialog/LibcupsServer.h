// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsServer.h"

#include <QCoreApplication>

namespace dialog {

/// The print server as libcups reaches it. Queues that libcups would find in the network by itself
/// are not among its printers; the server's own are.
class LibcupsServer : public CupsServer
{
    Q_DECLARE_TR_FUNCTIONS(dialog::LibcupsServer)

public:
    /// `server` as the environment variable CUPS_SERVER has it ("host:port" or the path of a
    /// socket); empty takes the system's.
    explicit LibcupsServer(QString server = {});

    Result<std::vector<Printer>> printers(CancelFlag &cancel) override;
    Result<std::unique_ptr<PpdFile>> ppd(const QString &printer, CancelFlag &cancel) override;
    Result<std::unique_ptr<JobChannel>> openJob(const QString &printer,
                                                CancelFlag &cancel) override;

private:
    QString mServer;
};

} // namespace dialog
