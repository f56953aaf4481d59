// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/BarcodeReader.h"
#include "dialog/DocumentPages.h"

#include <QPointF>
#include <QRectF>

#include <functional>
#include <vector>

namespace dialog {

/// A code on a page of a document.
struct PageCode
{
    /// As people write it: "EAN-13", "QR Code".
    QString format;
    QString text;
    /// On the upright page, in points.
    QRectF place;
    /// The narrowest bar, or a module of a field, along the code's own rows, in points.
    double narrowestBar = 0;
    /// The way of these rows on the page, one point long.
    QPointF way;
};

/// The codes that stand in a document, whatever the printer makes of them.
///
/// A page is read from two pictures of it: a fine one, of which no dot of the printer is part, in
/// bands that overlap, and one of about the printer's dots, for noisy codes and long ones. Memory
/// depends on neither the length of a page nor the number of pages.
class PageCodes
{
public:
    /// The fine picture has at least so many pixels for each dot. A picture document has its own
    /// pixels, whole times.
    static constexpr int kPixelsForDot = 3;
    /// The pixels of a band of it, about.
    static constexpr int kPixelsOfBand = 8 * 1024 * 1024;

    /// `reader` outlives this.
    PageCodes(
        const DocumentPages &document, BarcodeReader &reader,
        std::function<bool()> goOn = [] { return true; });

    /// The codes of page `page`, counted from 0, that is printed with `dotsForPoint` dots for a
    /// point of it. The failure is that of a damaged page, of the reader, or that `goOn` said no.
    Result<std::vector<PageCode>> of(int page, double dotsForPoint) const;

    /// The size of the fine picture of a page.
    QSize finePixels(int page, double dotsForPoint) const;

    /// A part of a page in grey; what of `part` is beside the page is white.
    Result<QImage> greyPart(int page, const QSize &pixels, const QRect &part) const;

private:
    std::optional<Failure> read(int page, const QSize &pixels, std::vector<PageCode> &codes) const;
    std::optional<Failure> readBand(int page, const QSize &pixels, const QRect &band,
                                    std::vector<PageCode> &codes) const;

    const DocumentPages &mDocument;
    BarcodeReader &mReader;
    std::function<bool()> mGoOn;
};

} // namespace dialog
