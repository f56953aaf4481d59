// SPDX-License-Identifier: Apache-2.0
#include "dialog/LibcupsServer.h"

#include "dialog/CupsConnection.h"
#include "dialog/CupsOptions.h"
#include "dialog/LibcupsChannel.h"

#include <QFile>

#include <array>

namespace dialog {

namespace {

QString textOf(const cups_dest_t *destination, const char *option)
{
    return QString::fromUtf8(cupsGetOption(option, destination->num_options, destination->options));
}

Printer::State stateOf(const cups_dest_t *destination)
{
    switch (textOf(destination, "printer-state").toInt()) {
    case IPP_PSTATE_PROCESSING:
        return Printer::State::Printing;
    case IPP_PSTATE_STOPPED:
        return Printer::State::Stopped;
    default:
        return Printer::State::Idle;
    }
}

Printer printerOf(const cups_dest_t *destination)
{
    Printer printer;
    printer.name = QString::fromUtf8(destination->name);
    if (destination->instance != nullptr) {
        printer.name += QLatin1Char('/') + QString::fromUtf8(destination->instance);
    }
    printer.description = textOf(destination, "printer-info");
    printer.location = textOf(destination, "printer-location");
    printer.model = textOf(destination, "printer-make-and-model");
    printer.deviceUri = textOf(destination, "device-uri");
    printer.isDefault = destination->is_default != 0;
    printer.acceptsJobs =
        textOf(destination, "printer-is-accepting-jobs") != QLatin1String("false");
    printer.state = stateOf(destination);
    printer.stateReasons =
        textOf(destination, "printer-state-reasons").split(QLatin1Char(','), Qt::SkipEmptyParts);
    return printer;
}

struct Listing
{
    std::vector<Printer> printers;
};

int addToListing(void *listing, unsigned flags, cups_dest_t *destination)
{
    if ((flags & CUPS_DEST_FLAGS_REMOVED) == 0) {
        static_cast<Listing *>(listing)->printers.push_back(printerOf(destination));
    }
    return 1;
}

/// The server's copy of a queue's PPD in a file that is gone with this.
class FetchedPpd
{
public:
    FetchedPpd(http_t *http, const char *queue)
        : mStatus(cupsGetPPD3(http, queue, &mModified, mPath.data(), mPath.size()))
    { }
    ~FetchedPpd()
    {
        if (mPath.front() != '\0') {
            QFile::remove(path());
        }
    }
    FetchedPpd(const FetchedPpd &) = delete;
    FetchedPpd &operator=(const FetchedPpd &) = delete;

    http_status_t status() const { return mStatus; }
    QString path() const { return QFile::decodeName(mPath.data()); }

private:
    std::array<char, 1024> mPath{};
    time_t mModified = 0;
    http_status_t mStatus;
};

} // namespace

LibcupsServer::LibcupsServer(QString server)
    : mServer(std::move(server))
{ }

Result<std::vector<Printer>> LibcupsServer::printers(CancelFlag &cancel)
{
    // The call below cannot tell a server without queues from none, and waits for ever for one that
    // does not answer.
    const auto connection = CupsConnection::open(mServer, cancel);
    if (!connection) {
        return connection.failure();
    }
    if (const auto failure = connection.value()->checkAnswers()) {
        return *failure;
    }
    Listing listing;
    const int finished = cupsEnumDests(CUPS_DEST_FLAGS_NONE, 0, cancel.forCups(), 0,
                                       CUPS_PRINTER_DISCOVERED, addToListing, &listing);
    if (cancel.isSet()) {
        return cancelled(tr("Printers"));
    }
    if (finished == 0) {
        return connection.value()->lastFailure(tr("Printers"));
    }
    return listing.printers;
}

Result<std::unique_ptr<PpdFile>> LibcupsServer::ppd(const QString &printer, CancelFlag &cancel)
{
    const auto connection = CupsConnection::open(mServer, cancel);
    if (!connection) {
        return connection.failure();
    }
    const auto destination = connection.value()->destination(printer);
    if (!destination) {
        return destination.failure();
    }
    connection.value()->beginStep();
    const FetchedPpd fetched(connection.value()->http(), destination.value()->name);
    if (fetched.status() == HTTP_STATUS_NOT_FOUND) {
        return std::unique_ptr<PpdFile>();
    }
    if (fetched.status() != HTTP_STATUS_OK) {
        return connection.value()->lastFailure(printer);
    }
    auto file = PpdFile::open(fetched.path(), printer);
    if (file) {
        file.value()->markOptions(
            choicesOf(destination.value()->num_options, destination.value()->options));
    }
    return file;
}

Result<std::unique_ptr<JobChannel>> LibcupsServer::openJob(const QString &printer,
                                                           CancelFlag &cancel)
{
    return LibcupsChannel::open(mServer, printer, cancel);
}

} // namespace dialog
