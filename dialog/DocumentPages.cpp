// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"

#include "dialog/DocumentToPdf.h"
#include "dialog/ImagePages.h"
#include "dialog/PdfPages.h"
#include "dialog/SvgPages.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>

namespace dialog {

namespace {

Failure documentFailure(const QString &path, const QString &why)
{
    return Failure{FailureKind::Document, path, why};
}

// Why `path` cannot be opened at all; empty when it looks like a file to read. Asked first because
// opening a pipe or a device could wait for ever.
QString objectionTo(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return DocumentPages::tr("there is no such file");
    }
    if (file.isDir()) {
        return DocumentPages::tr("is a folder; choose a document in it");
    }
    if (!file.isFile()) {
        return DocumentPages::tr("is not an ordinary file; choose a document");
    }
    if (file.size() > DocumentPages::kLargestFile) {
        return DocumentPages::tr("is larger than %1 MB; choose a smaller document")
            .arg(DocumentPages::kLargestFile / (1024 * 1024));
    }
    return {};
}

Result<QByteArray> contentOf(const QString &path)
{
    const QString objection = objectionTo(path);
    if (!objection.isEmpty()) {
        return documentFailure(path, objection);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return documentFailure(path,
                               DocumentPages::tr("cannot be read (%1)").arg(file.errorString()));
    }
    const QByteArray content = file.read(DocumentPages::kLargestFile);
    if (file.error() != QFileDevice::NoError) {
        return documentFailure(path,
                               DocumentPages::tr("cannot be read (%1)").arg(file.errorString()));
    }
    if (content.isEmpty()) {
        return documentFailure(path, DocumentPages::tr("is empty; choose another document"));
    }
    return content;
}

} // namespace

Result<std::shared_ptr<const DocumentPages>> DocumentPages::open(const QString &path)
{
    const Result<QByteArray> content = contentOf(path);
    if (!content) {
        return content.failure();
    }
    const std::shared_ptr<DocumentPages> document(new DocumentPages);
    document->mPath = path;
    document->mTitle = QFileInfo(path).fileName();
    if (const std::optional<Failure> failure = document->read(content.value())) {
        return *failure;
    }
    return std::shared_ptr<const DocumentPages>(document);
}

std::optional<Failure> DocumentPages::read(const QByteArray &content)
{
    const std::optional<DocumentKind> kind = documentKindOf(content);
    if (!kind) {
        return documentFailure(
            mPath, tr("is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these"));
    }
    mKind = *kind;
    mContent = content;
    if (mKind != DocumentKind::Pdf && mKind != DocumentKind::Svg) {
        return readPicture(content);
    }
    const Result<std::shared_ptr<const PageSource>> pages = mKind == DocumentKind::Pdf
        ? PdfPages::open(content, mPath)
        : SvgPages::open(content, mPath);
    if (!pages) {
        return pages.failure();
    }
    mPages = pages.value();
    mPrintsAsItIs = mKind == DocumentKind::Pdf;
    return {};
}

std::optional<Failure> DocumentPages::readPicture(const QByteArray &content)
{
    const Result<std::shared_ptr<const ImagePages>> pages = ImagePages::open(mKind, content, mPath);
    if (!pages) {
        return pages.failure();
    }
    mPages = pages.value();
    mPrintsAsItIs = pages.value()->printsAsItIs();
    return {};
}

int DocumentPages::pageCount() const
{
    return mPages->pageCount();
}

QSizeF DocumentPages::pageSize(int page) const
{
    return page >= 0 && page < pageCount() ? mPages->pageSize(page) : QSizeF(0, 0);
}

QSize DocumentPages::pixelSize(int page) const
{
    return page >= 0 && page < pageCount() ? mPages->pixelSize(page) : QSize();
}

Failure DocumentPages::damagedPage(int page) const
{
    return documentFailure(mPath, tr("page %1 is damaged and cannot be shown").arg(page + 1));
}

std::shared_ptr<const PageSource> DocumentPages::pagesWith(Edges edges) const
{
    if (mKind != DocumentKind::Svg || edges == Edges::Smooth) {
        return mPages;
    }
    const QMutexLocker lock(&mMutex);
    if (!mHardPages) {
        const Result<QByteArray> pdf = toPdf();
        const Result<std::shared_ptr<const PageSource>> pages =
            pdf ? PdfPages::open(pdf.value(), mPath) : pdf.failure();
        mHardPages = pages ? pages.value() : mPages;
    }
    return mHardPages;
}

bool DocumentPages::canRenderIn(const QSize &pixels, Edges edges) const
{
    const bool isPdf =
        mKind == DocumentKind::Pdf || (mKind == DocumentKind::Svg && edges == Edges::Hard);
    return !isPdf || qint64(pixels.width()) * pixels.height() <= kMostPixelsOfPdfPage;
}

Result<QImage> DocumentPages::render(int page, const QSize &pixels) const
{
    return renderPart(page, pixels, QRect(QPoint(), pixels));
}

Result<QImage> DocumentPages::renderPart(int page, const QSize &pixels, const QRect &part,
                                         Edges edges) const
{
    if (page < 0 || page >= pageCount()) {
        return documentFailure(mPath, tr("has no page %1").arg(page + 1));
    }
    if (part.isEmpty() || part.width() > kLongestRenderedSide
        || part.height() > kLongestRenderedSide || !QRect(QPoint(), pixels).contains(part)) {
        return documentFailure(
            mPath,
            tr("cannot be shown with %1 x %2 pixels").arg(pixels.width()).arg(pixels.height()));
    }
    if (!canRenderIn(pixels, edges)) {
        return documentFailure(mPath,
                               tr("page %1 has too many dots at this resolution; choose a lower "
                                  "resolution or a shorter label")
                                   .arg(page + 1));
    }
    QImage image(part.size(), QImage::Format_RGB32);
    if (image.isNull()) {
        return documentFailure(mPath, tr("there is not enough memory to show the page"));
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing,
                           edges == Edges::Smooth);
    painter.translate(-part.topLeft());
    if (!pagesWith(edges)->paint(page, painter, QRectF(QPointF(), pixels), QRectF(part))) {
        return damagedPage(page);
    }
    painter.end();
    return image;
}

Result<QByteArray> DocumentPages::toPdf() const
{
    if (mKind == DocumentKind::Pdf) {
        return mContent;
    }
    const std::optional<QByteArray> pdf = documentToPdf(*mPages, mTitle);
    if (!pdf) {
        return documentFailure(mPath, tr("has a damaged page; save or export it once more"));
    }
    return *pdf;
}

Result<PrintableDocument> DocumentPages::printable() const
{
    if (mPrintsAsItIs) {
        return PrintableDocument{mContent, mimeTypeOf(mKind)};
    }
    const Result<QByteArray> pdf = toPdf();
    if (!pdf) {
        return pdf.failure();
    }
    return PrintableDocument{pdf.value(), mimeTypeOf(DocumentKind::Pdf)};
}

} // namespace dialog
