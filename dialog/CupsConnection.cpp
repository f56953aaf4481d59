// SPDX-License-Identifier: Apache-2.0
#include "dialog/CupsConnection.h"

#include <QByteArray>

#include <algorithm>

namespace dialog {

namespace {

constexpr int kConnectSeconds = 10;
constexpr int kTicksPerSecond = 2;

/// Never: libcups' own way would ask on the terminal.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

QString reason()
{
    return QString::fromUtf8(cupsLastErrorString()).simplified();
}

} // namespace

QString useServer(const QString &server)
{
    cupsSetPasswordCB2(noPassword, nullptr);
    const QByteArray name = server.toUtf8();
    // libcups keeps a server for each thread, and threads are used again.
    cupsSetServer(name.isEmpty() ? nullptr : name.constData());
    return server.isEmpty() ? QString::fromUtf8(cupsServer()) : server;
}

Failure cancelled(const QString &what)
{
    return {FailureKind::Cancelled, what, CupsConnection::tr("stopped at your request")};
}

CupsConnection::CupsConnection(CancelFlag &cancel, int patience)
    : mCancel(cancel)
    , mAllowedTicks(patience * kTicksPerSecond)
{ }

Result<std::unique_ptr<CupsConnection>> CupsConnection::open(const QString &server,
                                                             CancelFlag &cancel, int patience)
{
    std::unique_ptr<CupsConnection> connection(new CupsConnection(cancel, patience));
    connection->mServer = tr("Print server %1").arg(useServer(server));
    connection->mHttp =
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                     1000 * std::min(patience, kConnectSeconds), cancel.forCups());
    if (cancel.isSet()) {
        return cancelled(connection->mServer);
    }
    if (connection->mHttp == nullptr) {
        return Failure{
            FailureKind::Server, connection->mServer,
            tr("cannot be reached (%1); start it, or print into a folder").arg(reason())};
    }
    httpSetTimeout(connection->mHttp, 1.0 / kTicksPerSecond, goesOnWaiting, connection.get());
    return connection;
}

CupsConnection::~CupsConnection()
{
    httpClose(mHttp);
}

int CupsConnection::goesOnWaiting(http_t *, void *connection)
{
    auto *self = static_cast<CupsConnection *>(connection);
    return !self->mCancel.isSet() && ++self->mSilentTicks < self->mAllowedTicks ? 1 : 0;
}

std::optional<Failure> CupsConnection::checkAnswers()
{
    beginStep();
    ipp_t *answer = cupsDoRequest(mHttp, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    ippDelete(answer);
    // A server without a default printer says so, which is an answer.
    const bool answered = answer != nullptr || cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    return answered ? std::nullopt : std::optional(lastFailure(mServer));
}

Result<DestinationPtr> CupsConnection::destination(const QString &printer)
{
    // The call below would go on to look for the printer in the network, without an end when the
    // server does not answer.
    if (const auto failure = checkAnswers()) {
        return *failure;
    }
    beginStep();
    const QByteArray name = printer.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray instance = printer.section(QLatin1Char('/'), 1).toUtf8();
    DestinationPtr found(cupsGetNamedDest(mHttp, name.constData(),
                                          instance.isEmpty() ? nullptr : instance.constData()));
    if (!found) {
        return lastFailure(printer);
    }
    return found;
}

Failure CupsConnection::lastFailure(const QString &printer) const
{
    if (mCancel.isSet()) {
        return cancelled(printer);
    }
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        return {FailureKind::Printer, printer,
                tr("the print server has no such printer; choose another one")};
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return {FailureKind::Printer, printer,
                tr("does not accept jobs at the moment; choose another printer or ask its owner")};
    case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
        return {FailureKind::Job, printer, tr("does not take documents of this kind")};
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return {FailureKind::Printer, printer, tr("the print server does not let you print on it")};
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
        return {FailureKind::Server, mServer,
                tr("broke off the connection (%1); try again when it is back").arg(reason())};
    default:
        return {FailureKind::Job, printer,
                tr("the print server refused the job (%1)").arg(reason())};
    }
}

} // namespace dialog
