// SPDX-License-Identifier: Apache-2.0
#include "dialog/PdfPages.h"

#include <QPainter>

namespace dialog {

PdfPages::PdfPages(const QByteArray &content)
{
    mContent.setData(content);
    mContent.open(QIODevice::ReadOnly);
    mDocument.load(&mContent);
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
    return mDocument.pageCount() > 0 ? QString() : tr("has no pages; choose another document");
}

int PdfPages::pageCount() const
{
    const QMutexLocker lock(&mMutex);
    return mDocument.pageCount();
}

QSizeF PdfPages::pageSize(int page) const
{
    const QMutexLocker lock(&mMutex);
    return mDocument.pagePointSize(page).expandedTo(QSizeF(0, 0));
}

// Qt's own rendering of a part is off by a pixel here and there, so parts are cut from the whole.
QImage PdfPages::whole(int page, const QSize &size, bool inParts, bool hardEdges) const
{
    if (mLastPage == page && mLast.size() == size && mLastIsHard == hardEdges) {
        return mLast;
    }
    QPdfDocumentRenderOptions options;
    using Flag = QPdfDocumentRenderOptions::RenderFlag;
    options.setRenderFlags(hardEdges ? Flag::Annotations | Flag::TextAliased | Flag::PathAliased
                                     : Flag::Annotations);
    const QImage image = mDocument.render(page, size, options);
    mLast = inParts ? image : QImage();
    mLastPage = page;
    mLastIsHard = hardEdges;
    return image;
}

bool PdfPages::paint(int page, QPainter &painter, const QRectF &target, const QRectF &part) const
{
    const QMutexLocker lock(&mMutex);
    const QSize size = target.size().toSize();
    const QRect wanted = part.translated(-target.topLeft()).toAlignedRect() & QRect(QPoint(), size);
    const QImage image =
        whole(page, size, wanted.size() != size, !painter.testRenderHint(QPainter::Antialiasing));
    if (image.isNull()) {
        return false;
    }
    if (wanted.size() == size) {
        painter.drawImage(target, image);
    } else {
        painter.drawImage(target.topLeft() + wanted.topLeft(), image.copy(wanted));
    }
    return true;
}

} // namespace dialog
