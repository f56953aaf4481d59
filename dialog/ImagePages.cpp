// SPDX-License-Identifier: Apache-2.0
#include "dialog/ImagePages.h"

#include "dialog/ImageHeader.h"

#include <QBuffer>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>

namespace dialog {

namespace {

constexpr double kPointsPerInch = 72;
// Beyond these a resolution is an accident of the program that wrote the file.
constexpr double kLeastResolution = 10;
constexpr double kMostResolution = 10'000;
constexpr int kMegabytesPerPicture = 512;

QByteArray formatOf(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Jpeg:
        return "jpeg";
    case DocumentKind::Tiff:
        return "tiff";
    default:
        return "png";
    }
}

bool isUsable(double resolution)
{
    return resolution >= kLeastResolution && resolution <= kMostResolution;
}

bool isTransposed(QImageIOHandler::Transformations turn)
{
    return turn.testFlag(QImageIOHandler::TransformationRotate90);
}

} // namespace

QString ImagePages::damaged()
{
    return tr("is a damaged picture; save or export it once more");
}

ImagePages::ImagePages(DocumentKind kind, const QByteArray &content)
    : mKind(kind)
    , mContent(content)
{
    QImageReader::setAllocationLimit(kMegabytesPerPicture);
    if (mKind == DocumentKind::Tiff) {
        QBuffer buffer(&mContent);
        QImageReader reader(&buffer, formatOf(mKind));
        mPageCount = std::max(1, reader.imageCount());
    }
}

Result<std::shared_ptr<const ImagePages>>
ImagePages::open(DocumentKind kind, const QByteArray &content, const QString &name)
{
    if (!QImageReader::supportedImageFormats().contains(formatOf(kind))) {
        return Failure{FailureKind::Document, name,
                       tr("is a TIFF picture, and Qt's plug-in for these is not installed; install "
                          "the package qt6-image-formats-plugins")};
    }
    const std::shared_ptr<const ImagePages> pages(new ImagePages(kind, content));
    const QString why =
        kind == DocumentKind::Tiff && isTiffCutShort(content) ? damaged() : pages->decoded(0).why;
    if (!why.isEmpty()) {
        return Failure{FailureKind::Document, name, why};
    }
    return pages;
}

ImagePages::Decoded ImagePages::decode(int page) const
{
    QByteArray content = mContent;
    QBuffer buffer(&content);
    QImageReader reader(&buffer, formatOf(mKind));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    Decoded picture;
    picture.page = page;
    if (page > 0 && !reader.jumpToImage(page)) {
        picture.why = damaged();
        return picture;
    }
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > kMostPixels) {
        picture.why = tr("has %1 x %2 pixels, too many for a label; make the picture smaller")
                          .arg(size.width())
                          .arg(size.height());
        return picture;
    }
    picture.turned = reader.transformation() != QImageIOHandler::TransformationNone;
    picture.transposed = isTransposed(reader.transformation());
    if (!reader.read(&picture.image) || picture.image.isNull()) {
        picture.image = {};
        picture.why = damaged();
    }
    return picture;
}

ImagePages::Decoded ImagePages::decoded(int page) const
{
    const QMutexLocker lock(&mMutex);
    if (mLast.page != page) {
        mLast = decode(page);
    }
    return mLast;
}

QSizeF ImagePages::resolution(const Decoded &picture) const
{
    const QSizeF stated = imageResolutionOf(mKind, mContent, picture.page).value_or(QSizeF());
    if (!isUsable(stated.width()) || !isUsable(stated.height())) {
        return {kDefaultResolution, kDefaultResolution};
    }
    return picture.transposed ? stated.transposed() : stated;
}

QSizeF ImagePages::pageSize(int page) const
{
    const Decoded picture = decoded(page);
    if (picture.image.isNull()) {
        return {0, 0};
    }
    const QSizeF dots = resolution(picture);
    return {picture.image.width() * kPointsPerInch / dots.width(),
            picture.image.height() * kPointsPerInch / dots.height()};
}

QImage ImagePages::smaller(const QImage &image, const QSize &size) const
{
    const QMutexLocker lock(&mMutex);
    const SmallerPicture key{image.cacheKey(), size};
    if (const QImage *kept = mSmaller.find(key)) {
        return *kept;
    }
    const QImage made = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    mSmaller.put(key, made);
    return made;
}

QSize ImagePages::pixelSize(int page) const
{
    return decoded(page).image.size();
}

bool ImagePages::paint(int page, QPainter &painter, const QRectF &target, const QRectF &) const
{
    QImage image = decoded(page).image;
    if (image.isNull()) {
        return false;
    }
    const QSize wished = target.size().toSize();
    // Painting makes pictures smaller by leaving pixels out; fine lines would be lost.
    const bool shrinks = wished.width() < image.width() || wished.height() < image.height();
    if (painter.paintEngine()->type() == QPaintEngine::Raster && shrinks) {
        image = smaller(image, wished);
    }
    // Pixels that become whole numbers of pixels keep their edges: the bars of a code stay as wide
    // as they are.
    const bool isMultiple = !image.isNull() && wished.width() % image.width() == 0
        && wished.height() % image.height() == 0 && QSizeF(wished) == target.size();
    const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth && !isMultiple);
    painter.drawImage(target, image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
    return true;
}

bool ImagePages::printsAsItIs() const
{
    const Decoded picture = decoded(0);
    const std::optional<QSizeF> stated = imageResolutionOf(mKind, mContent);
    const bool filtersKnowTheSize = !stated
        || (isUsable(stated->width()) && isUsable(stated->height())
            && stated->width() == stated->height());
    return mKind != DocumentKind::Tiff && filtersKnowTheSize && !picture.turned
        && !picture.image.hasAlphaChannel();
}

} // namespace dialog
