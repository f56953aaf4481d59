// SPDX-License-Identifier: Apache-2.0
#include "dialog/PpdFetcher.h"

#include "dialog/NetworkThreads.h"

#include <QThreadPool>

namespace dialog {

PpdFetch::PpdFetch(std::shared_ptr<CupsServer> server, QString printer)
    : mServer(std::move(server))
    , mPrinter(std::move(printer))
{ }

void PpdFetch::run()
{
    auto ppd = mServer->ppd(mPrinter, mCancel);
    if (mCancel.isSet()) {
        return;
    }
    if (ppd) {
        Q_EMIT fetched(mPrinter, std::move(ppd).value());
    } else {
        Q_EMIT failed(mPrinter, ppd.failure());
    }
}

PpdFetcher::PpdFetcher(std::shared_ptr<CupsServer> server, QObject *parent)
    : QObject(parent)
    , mServer(std::move(server))
{ }

PpdFetcher::~PpdFetcher()
{
    cancel();
}

void PpdFetcher::cancel()
{
    if (mFetch) {
        mFetch->cancel();
        mFetch->disconnect(this);
        mFetch.reset();
    }
}

void PpdFetcher::fetch(const QString &printer)
{
    cancel();
    mFetch = std::make_shared<PpdFetch>(mServer, printer);
    // An answer that is already on its way when the next request comes is of no use any more.
    const auto isCurrent = [this, fetch = mFetch.get()] { return mFetch.get() == fetch; };
    connect(
        mFetch.get(), &PpdFetch::fetched, this,
        [this, isCurrent](const QString &name, const std::shared_ptr<PpdFile> &ppd) {
            if (isCurrent()) {
                mFetch.reset();
                Q_EMIT fetched(name, ppd);
            }
        },
        Qt::QueuedConnection);
    connect(
        mFetch.get(), &PpdFetch::failed, this,
        [this, isCurrent](const QString &name, const Failure &failure) {
            if (isCurrent()) {
                mFetch.reset();
                Q_EMIT failed(name, failure);
            }
        },
        Qt::QueuedConnection);
    networkThreads()->start([fetch = mFetch] { fetch->run(); });
}

} // namespace dialog
