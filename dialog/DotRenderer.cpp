// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotRenderer.h"

namespace dialog {

namespace {

/// Between two signs of progress, in milliseconds.
constexpr int kTellingInterval = 50;

/// So many in a row are given up for other settings.
constexpr int kMostGivenUp = 2;

} // namespace

DotRenderer::DotRenderer(QObject *parent)
    : QObject(parent)
{
    mPool.setMaxThreadCount(1);
    connect(&mTelling, &QTimer::timeout, this, &DotRenderer::tell);
}

DotRenderer::~DotRenderer()
{
    cancel();
    mPool.waitForDone();
}

void DotRenderer::render(const DotRequest &request)
{
    mNewest = request;
    if (!mTelling.isActive()) {
        mTelling.start(kPatience);
    }
    if (!mRunning) {
        start();
    } else if (request != mRunningRequest && !mRunning->isSet()) {
        giveUp();
    }
}

void DotRenderer::giveUp()
{
    if (!mNewest->hasRenderingOf(mRunningRequest)) {
        mGivenUp = 0;
        mRunning->set();
    } else if (mGivenUp < kMostGivenUp) {
        ++mGivenUp;
        mRunning->set();
    }
}

void DotRenderer::cancel()
{
    mNewest.reset();
    mTelling.stop();
    if (mRunning) {
        mRunning->set();
    }
}

void DotRenderer::clear()
{
    cancel();
    if (mRemembers) {
        mRemembers = false;
        mPool.start([this] { mMaker.forget(); });
    }
}

void DotRenderer::start()
{
    mRemembers = true;
    mRunningRequest = *mNewest;
    mRunning = std::make_shared<CancelFlag>();
    mPercent = 0;
    mPool.start([this, request = mRunningRequest, flag = mRunning] {
        const std::optional<DotPicture> picture = mMaker.make(request, [this, &flag](int percent) {
            mPercent = percent;
            return !flag->isSet();
        });
        QMetaObject::invokeMethod(
            this, [this, picture] { finish(picture); }, Qt::QueuedConnection);
    });
}

void DotRenderer::finish(const std::optional<DotPicture> &picture)
{
    mRunning.reset();
    mRunningRequest = {};
    if (mNewest && picture && picture->request.hasRenderingOf(*mNewest)) {
        mGivenUp = 0;
        mTelling.stop();
        if (picture->request == *mNewest) {
            mNewest.reset();
        } else {
            mTelling.start(kPatience);
        }
        Q_EMIT rendered(*picture);
    }
    if (mNewest && !mRunning) {
        start();
    }
}

void DotRenderer::tell()
{
    mTelling.setInterval(kTellingInterval);
    Q_EMIT progressed(mPercent);
}

} // namespace dialog
