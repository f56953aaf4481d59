// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentKind.h"
#include "dialog/Failure.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QMutex>
#include <QSizeF>
#include <QString>

#include <memory>

namespace dialog {

class PageSource;

/// How the edges of type and shapes come out.
enum class Edges
{
    Smooth, ///< with shades between, for a screen
    Hard ///< each pixel has one colour or the other, for dots
};

/// A document as it is sent to the print system.
struct PrintableDocument
{
    QByteArray data;
    QString mimeType;
};

/// An open document: its pages and the bytes that are printed.
///
/// The whole file is read when it is opened. What happens to the file afterwards changes neither
/// what is shown nor what is printed, so that the job is what was seen. Any thread; a call may have
/// to wait while another one renders.
class DocumentPages
{
    Q_DECLARE_TR_FUNCTIONS(dialog::DocumentPages)

public:
    /// Files beyond this size are refused.
    static constexpr qint64 kLargestFile = 512LL * 1024 * 1024;

    /// The longest side of a picture that `render` makes, in pixels.
    static constexpr int kLongestRenderedSide = 8192;

    /// A page of a PDF document is rendered as a whole, with no more pixels than these.
    static constexpr qint64 kMostPixelsOfPdfPage = 100'000'000;

    /// Opens a PDF, PNG, JPEG, TIFF or SVG document; the content tells which, not the name.
    static Result<std::shared_ptr<const DocumentPages>> open(const QString &path);

    DocumentKind kind() const { return mKind; }

    /// The name of the file without its folder.
    const QString &title() const { return mTitle; }

    const QString &path() const { return mPath; }

    /// At least 1.
    int pageCount() const;

    /// The size of page `page`, counted from 0, in points; empty when there is no such page or it
    /// is damaged.
    QSizeF pageSize(int page) const;

    /// The pixels of page `page` of a picture, upright; empty for a document without pixels of its
    /// own (PDF, SVG), and where there is no such page.
    QSize pixelSize(int page) const;

    /// Whether the pages are pictures of pixels. At once, whatever is being rendered.
    bool hasPixels() const { return mKind != DocumentKind::Pdf && mKind != DocumentKind::Svg; }

    /// Page `page`, counted from 0, on white, stretched to `pixels`.
    Result<QImage> render(int page, const QSize &pixels) const;

    /// Page `page` as `render` would show it in `pixels`, of any size, but no more than `part` of
    /// it, which lies within and has at most kLongestRenderedSide pixels on a side.
    Result<QImage> renderPart(int page, const QSize &pixels, const QRect &part,
                              Edges edges = Edges::Smooth) const;

    /// Whether parts of a page of so many pixels can be rendered at all.
    bool canRenderIn(const QSize &pixels, Edges edges) const;

    /// The pages as a PDF document; a PDF document as it is.
    Result<QByteArray> toPdf() const;

    /// What to send, in a form that the print system's filters print the way it is shown here: as
    /// it is, or as PDF where the filters would read it in another way or not at all (SVG, TIFF,
    /// transparent pictures, photographs that have to be turned).
    Result<PrintableDocument> printable() const;

private:
    DocumentPages() = default;
    std::optional<Failure> read(const QByteArray &content);
    std::optional<Failure> readPicture(const QByteArray &content);
    Failure damagedPage(int page) const;
    std::shared_ptr<const PageSource> pagesWith(Edges edges) const;

    QString mPath;
    QString mTitle;
    DocumentKind mKind = DocumentKind::Pdf;
    QByteArray mContent;
    bool mPrintsAsItIs = false;
    std::shared_ptr<const PageSource> mPages;
    mutable QMutex mMutex;
    /// A drawing as PDF: Qt draws SVG with smooth edges only.
    mutable std::shared_ptr<const PageSource> mHardPages;
};

} // namespace dialog
