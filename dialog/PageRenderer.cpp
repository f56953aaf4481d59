// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageRenderer.h"

#include <algorithm>

namespace dialog {

namespace {

QSize limited(const QSizeF &pixels)
{
    const QSizeF most(PageRenderer::kLongestSide, PageRenderer::kLongestSide);
    const bool tooLarge = pixels.width() > most.width() || pixels.height() > most.height();
    const QSizeF size = tooLarge ? pixels.scaled(most, Qt::KeepAspectRatio) : pixels;
    return size.toSize().expandedTo(QSize(1, 1));
}

} // namespace

PageRenderer::PageRenderer(QObject *parent)
    : QObject(parent)
{
    mPool.setMaxThreadCount(1);
}

PageRenderer::~PageRenderer()
{
    mPool.waitForDone();
}

double PageRenderer::pixelsPerPoint(const Sheet &sheet, const QSizeF &pixels)
{
    if (sheet.size.isEmpty() || pixels.isEmpty()) {
        return 0;
    }
    return std::min(pixels.width() / sheet.size.width(), pixels.height() / sheet.size.height());
}

PagePicture PageRenderer::pictureOf(const PageRequest &request)
{
    PagePicture picture;
    picture.request = request;
    picture.pageSize = request.document->pageSize(request.page);
    const Sheet sheet =
        request.sheet.size.isEmpty() ? Sheet{picture.pageSize, QMarginsF()} : request.sheet;
    const double scale = pixelsPerPoint(sheet, request.pixels)
        * SheetLayout::place(picture.pageSize, sheet, request.scaling).scale;
    const Result<QImage> image =
        request.document->render(request.page, limited(picture.pageSize * scale));
    if (image) {
        picture.image = image.value();
    } else {
        picture.why = request.document->title() + QStringLiteral(": ") + image.failure().why;
    }
    return picture;
}

void PageRenderer::render(const PageRequest &request)
{
    mNewest = request;
    if (!mRunning) {
        start();
    }
}

void PageRenderer::cancel()
{
    mNewest.reset();
}

void PageRenderer::start()
{
    mRunning = true;
    mPool.start([this, request = *mNewest] {
        const PagePicture picture = pictureOf(request);
        QMetaObject::invokeMethod(
            this, [this, picture] { finish(picture); }, Qt::QueuedConnection);
    });
}

void PageRenderer::finish(const PagePicture &picture)
{
    mRunning = false;
    if (!mNewest) {
        return;
    }
    if (picture.request == *mNewest) {
        mNewest.reset();
        Q_EMIT rendered(picture);
    } else {
        start();
    }
}

} // namespace dialog
