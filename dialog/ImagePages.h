// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentKind.h"
#include "dialog/Failure.h"
#include "dialog/LastTwo.h"
#include "dialog/PageSource.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QMutex>

#include <memory>

namespace dialog {

/// The pages of a PNG, JPEG or TIFF picture; each picture of a TIFF file is a page. A page is as
/// large as the resolution in the file says, and upright as the camera noted.
class ImagePages : public PageSource
{
    Q_DECLARE_TR_FUNCTIONS(dialog::ImagePages)

public:
    /// Dots per inch of a picture that does not say: the number that the print system's filters
    /// take.
    static constexpr double kDefaultResolution = 200;

    /// Pictures with more pixels are refused before any memory is taken for them.
    static constexpr qint64 kMostPixels = 120'000'000;

    /// `name` is what failures are about. The first picture is decoded, so that a damaged one is
    /// noticed here.
    static Result<std::shared_ptr<const ImagePages>>
    open(DocumentKind kind, const QByteArray &content, const QString &name);

    int pageCount() const override { return mPageCount; }
    QSizeF pageSize(int page) const override;
    QSize pixelSize(int page) const override;
    bool paint(int page, QPainter &painter, const QRectF &target,
               const QRectF &part) const override;

    /// Whether the print system's filters show this picture as it is shown here. They know no
    /// transparency, do not turn pictures upright and read the first picture of a file alone.
    bool printsAsItIs() const;

private:
    struct Decoded
    {
        int page = -1;
        QImage image;
        /// The picture had to be turned or mirrored to stand upright.
        bool turned = false;
        /// Turned by a quarter, so that across and down are exchanged.
        bool transposed = false;
        QString why;
    };

    struct SmallerPicture
    {
        qint64 of; ///< QImage::cacheKey()
        QSize size;

        bool operator==(const SmallerPicture &other) const = default;
    };

    ImagePages(DocumentKind kind, const QByteArray &content);
    static QString damaged();
    Decoded decode(int page) const;
    Decoded decoded(int page) const;
    QImage smaller(const QImage &image, const QSize &size) const;
    QSizeF resolution(const Decoded &picture) const;

    DocumentKind mKind;
    QByteArray mContent;
    int mPageCount = 1;
    mutable QMutex mMutex;
    /// The picture that was shown last: a window that changes its size asks for it often.
    mutable Decoded mLast;
    /// The same made smaller, for the parts of a page that are painted one after the other.
    mutable LastTwo<SmallerPicture, QImage> mSmaller;
};

} // namespace dialog
