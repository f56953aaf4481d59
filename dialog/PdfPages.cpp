// SPDX-License-Identifier: Apache-2.0
#include "dialog/PdfPages.h"

#include <QPainter>

namespace dialog {

PdfPages::PdfPages(const QByteArray &content)
{
    mContent.setData(content);
    mContent.open(QIODevice::ReadOnly);
    mDocument.load(&mContent);
    mPageCount = mDocument.pageCount();
}

Result<std::shared_ptr<const PageSource>> PdfPages::open(const QByteArray &content,
                                                         const QString &name)
{
    const std::shared_ptr<const PdfPages> pages(new PdfPages(content));
    const QString why = pages->loadError();
    if (!why.isEmpty()) {
        return Failure{FailureKind::Document, name, why};
    }
    return std::shared_ptr<const PageSource>(pages);
}

QString PdfPages::loadError() const
{
    switch (mDocument.error()) {
    case QPdfDocument::Error::None:
        break;
    case QPdfDocument::Error::IncorrectPassword:
        return tr("is protected by a password; save a copy without one and print that");
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return tr("is encrypted in a way that cannot be read; save a copy without encryption");
    default:
        return tr("is a damaged PDF document; save or export it once more");
    }
    return mPageCount > 0 ? QString() : tr("has no pages; choose another document");
}

QSizeF PdfPages::pageSize(int page) const
{
    {
        const QMutexLocker sizes(&mSizesMutex);
        const auto known = mSizes.constFind(page);
        if (known != mSizes.constEnd()) {
            return *known;
        }
    }
    const QSizeF size = sizeInDocument(page);
    const QMutexLocker sizes(&mSizesMutex);
    mSizes.insert(page, size);
    return size;
}

QSizeF PdfPages::sizeInDocument(int page) const
{
    const QMutexLocker lock(&mMutex);
    return mDocument.pagePointSize(page).expandedTo(QSizeF(0, 0));
}

QImage PdfPages::whole(const WholePage &key) const
{
    QPdfDocumentRenderOptions options;
    using Flag = QPdfDocumentRenderOptions::RenderFlag;
    options.setRenderFlags(key.hardEdges ? Flag::Annotations | Flag::TextAliased | Flag::PathAliased
                                         : Flag::Annotations);
    return mDocument.render(key.page, key.size, options);
}

// Qt's own rendering of a part is off by a pixel here and there, so parts are cut from the whole.
bool PdfPages::paint(int page, QPainter &painter, const QRectF &target, const QRectF &part) const
{
    const QMutexLocker lock(&mMutex);
    const QSize size = target.size().toSize();
    const QRect wanted = part.translated(-target.topLeft()).toAlignedRect() & QRect(QPoint(), size);
    const WholePage key{page, size, !painter.testRenderHint(QPainter::Antialiasing)};
    const QImage *kept = mWholes.find(key);
    const QImage image = kept ? *kept : whole(key);
    if (image.isNull()) {
        return false;
    }
    if (wanted.size() == size) {
        painter.drawImage(target, image);
        return true;
    }
    painter.drawImage(target.topLeft() + wanted.topLeft(), image.copy(wanted));
    if (!kept) {
        mWholes.put(key, image);
    }
    return true;
}

} // namespace dialog
