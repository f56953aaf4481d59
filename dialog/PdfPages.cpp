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

bool PdfPages::paint(int page, QPainter &painter, const QRectF &target) const
{
    const QMutexLocker lock(&mMutex);
    QPdfDocumentRenderOptions options;
    options.setRenderFlags(QPdfDocumentRenderOptions::RenderFlag::Annotations);
    const QImage image = mDocument.render(page, target.size().toSize(), options);
    if (image.isNull()) {
        return false;
    }
    painter.drawImage(target, image);
    return true;
}

} // namespace dialog
