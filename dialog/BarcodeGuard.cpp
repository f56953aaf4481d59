// SPDX-License-Identifier: Apache-2.0
#include "dialog/BarcodeGuard.h"

#include <utility>

namespace dialog {

PageGuard::PageGuard(const QString &program)
    : mReader(program)
    , mCheck(mReader)
{ }

Result<std::vector<PageCode>> PageGuard::codesOf(const PrintedPage &printed,
                                                 const std::function<bool()> &goOn)
{
    if (mDocument != printed.document) {
        mKnown.clear();
        mDocument = printed.document;
    }
    // Codes that were found in a finer picture are there in a coarser one, too.
    const double wanted = dotsForPoint(printed);
    const auto known = mKnown.find(printed.page);
    if (known != mKnown.end() && known->second.dotsForPoint >= wanted) {
        return known->second.codes;
    }
    const Result<std::vector<PageCode>> codes =
        PageCodes(*printed.document, mReader, goOn).of(printed.page, wanted);
    if (codes) {
        mKnown[printed.page] = {wanted, codes.value()};
    }
    return codes;
}

Result<std::vector<LostCode>> PageGuard::lostCodes(const PrintedPage &printed,
                                                   const std::function<bool()> &goOn)
{
    const Result<std::vector<PageCode>> codes = codesOf(printed, goOn);
    if (!codes) {
        return codes.failure();
    }
    return mCheck.lost(printed, codes.value(), goOn);
}

BarcodeGuard::BarcodeGuard(QObject *parent)
    : QObject(parent)
    , mWorker(new QObject)
{
    mDelay.setSingleShot(true);
    mDelay.setInterval(kDelay);
    connect(&mDelay, &QTimer::timeout, this, &BarcodeGuard::start);
    mWorker->moveToThread(&mThread);
    // The program that reads codes was started in the thread, and ends there.
    connect(
        &mThread, &QThread::finished, mWorker, [this] { mPages.reset(); }, Qt::DirectConnection);
    connect(&mThread, &QThread::finished, mWorker, &QObject::deleteLater);
    mThread.start(QThread::LowPriority);
}

BarcodeGuard::~BarcodeGuard()
{
    stop();
    mThread.quit();
    mThread.wait();
}

void BarcodeGuard::stop()
{
    mDelay.stop();
    if (mCancel) {
        mCancel->store(true);
        mCancel.reset();
    }
}

void BarcodeGuard::check(const GuardRequest &request)
{
    if (request == mRequest) {
        return;
    }
    stop();
    mRequest = request;
    mIsBusy = true;
    mIsFresh = false;
    mDelay.start();
    Q_EMIT changed();
}

void BarcodeGuard::clear()
{
    stop();
    const bool isOther = mIsBusy || !mLost.empty() || mFailure;
    mRequest = {};
    mIsBusy = false;
    mLost.clear();
    mFailure.reset();
    if (isOther) {
        Q_EMIT changed();
    }
}

void BarcodeGuard::start()
{
    mCancel = std::make_shared<std::atomic<bool>>(false);
    QMetaObject::invokeMethod(
        mWorker, [this, request = mRequest, cancel = mCancel] { work(request, cancel); },
        Qt::QueuedConnection);
}

// In the thread.
void BarcodeGuard::work(const GuardRequest &request, const Cancel &cancel)
{
    if (!mPages) {
        mPages = std::make_unique<PageGuard>();
    }
    PrintedPage printed = request.printed;
    for (const int page : request.pages) {
        if (cancel->load()) {
            return;
        }
        printed.page = page;
        const Result<std::vector<LostCode>> lost =
            mPages->lostCodes(printed, [&cancel] { return !cancel->load(); });
        QMetaObject::invokeMethod(
            this, [this, cancel, lost] { take(cancel, lost); }, Qt::QueuedConnection);
        if (!lost && lost.failure().kind == FailureKind::Barcode) {
            break;
        }
    }
    QMetaObject::invokeMethod(
        this, [this, cancel] { finish(cancel); }, Qt::QueuedConnection);
}

void BarcodeGuard::take(const Cancel &cancel, const Result<std::vector<LostCode>> &page)
{
    if (cancel != mCancel) {
        return;
    }
    if (page && page.value().empty()) {
        return;
    }
    if (!std::exchange(mIsFresh, true)) {
        mLost.clear();
        mFailure.reset();
    }
    if (page) {
        mLost.insert(mLost.end(), page.value().begin(), page.value().end());
    } else {
        mFailure = page.failure();
    }
    Q_EMIT changed();
}

void BarcodeGuard::finish(const Cancel &cancel)
{
    if (cancel != mCancel) {
        return;
    }
    if (!mIsFresh) {
        mLost.clear();
        mFailure.reset();
    }
    mIsBusy = false;
    mCancel.reset();
    Q_EMIT changed();
}

} // namespace dialog
