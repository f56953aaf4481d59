// SPDX-License-Identifier: Apache-2.0
#include "dialog/LibcupsChannel.h"

#include "dialog/CupsOptions.h"

namespace dialog {

Result<std::unique_ptr<JobChannel>> LibcupsChannel::open(const QString &server,
                                                         const QString &printer, CancelFlag &cancel)
{
    std::unique_ptr<LibcupsChannel> channel(new LibcupsChannel);
    channel->mServer = server;
    channel->mPrinter = printer;
    auto connection = CupsConnection::open(server, cancel);
    if (!connection) {
        return connection.failure();
    }
    channel->mConnection = std::move(connection).value();
    auto destination = channel->mConnection->destination(printer);
    if (!destination) {
        return destination.failure();
    }
    channel->mDestination = std::move(destination).value();
    channel->mInfo.reset(
        cupsCopyDestInfo(channel->mConnection->http(), channel->mDestination.get()));
    if (!channel->mInfo) {
        return channel->lastFailure();
    }
    return std::unique_ptr<JobChannel>(std::move(channel));
}

Result<int> LibcupsChannel::createJob(const QString &title, const OptionChoices &options)
{
    const QByteArray text = title.toUtf8();
    const CupsOptions records(options);
    mConnection->beginStep();
    const ipp_status_t status =
        cupsCreateDestJob(mConnection->http(), mDestination.get(), mInfo.get(), &mJob,
                          text.constData(), records.count(), records.data());
    if (status > IPP_STATUS_OK_CONFLICTING || mJob <= 0) {
        return lastFailure();
    }
    return mJob;
}

std::optional<Failure> LibcupsChannel::startDocument(const QString &name, const QString &mimeType)
{
    const QByteArray text = name.toUtf8();
    const QByteArray format = mimeType.toLatin1();
    mConnection->beginStep();
    const http_status_t status =
        cupsStartDestDocument(mConnection->http(), mDestination.get(), mInfo.get(), mJob,
                              text.constData(), format.constData(), 0, nullptr, 1);
    return status == HTTP_STATUS_CONTINUE ? std::nullopt : std::optional(lastFailure());
}

std::optional<Failure> LibcupsChannel::write(const char *bytes, qint64 count)
{
    mConnection->beginStep();
    const http_status_t status =
        cupsWriteRequestData(mConnection->http(), bytes, static_cast<size_t>(count));
    if (status == HTTP_STATUS_CONTINUE) {
        return {};
    }
    if (status != HTTP_STATUS_ERROR) {
        // The server has answered before the end: its answer says why.
        cupsFinishDestDocument(mConnection->http(), mDestination.get(), mInfo.get());
    }
    return lastFailure();
}

std::optional<Failure> LibcupsChannel::finishDocument()
{
    mConnection->beginStep();
    const ipp_status_t status =
        cupsFinishDestDocument(mConnection->http(), mDestination.get(), mInfo.get());
    return status <= IPP_STATUS_OK_CONFLICTING ? std::nullopt : std::optional(lastFailure());
}

std::optional<Failure> LibcupsChannel::cancelJob()
{
    // A half-sent document ends with its connection.
    mConnection.reset();
    constexpr int kPatience = 5;
    CancelFlag never;
    auto connection = CupsConnection::open(mServer, never, kPatience);
    if (!connection) {
        return connection.failure();
    }
    const ipp_status_t status =
        cupsCancelDestJob(connection.value()->http(), mDestination.get(), mJob);
    return status <= IPP_STATUS_OK_CONFLICTING
        ? std::nullopt
        : std::optional(connection.value()->lastFailure(mPrinter));
}

} // namespace dialog
