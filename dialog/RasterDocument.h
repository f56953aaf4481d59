// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotPages.h"

#include <QIODevice>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <cups/ppd.h>
#include <cups/raster.h>

namespace dialog {

/// Told how many of the bands of all pages are done; no stops the work.
using BandsDone = std::function<bool(int done, int bands)>;

/// The pages of a job as 8-bit CUPS raster, of which the filter labelgraphics makes the very dots
/// that SheetPixels gives. Copies are in the raster, as the print system's filters for documents
/// put them there. A value; any thread.
class RasterDocument
{
public:
    /// How `pages` go to a queue with the marks of `ppd`. Nothing when it takes no such raster: it
    /// has not the filter, its marks ask for other raster, or a page has too many dots.
    static std::optional<RasterDocument> of(DotPages pages, ppd_file_t *ppd, int copies);

    /// Renders every page once, band by band, into a file that goes with the device. The failure is
    /// a damaged page's or the file's, or FailureKind::Cancelled.
    Result<std::unique_ptr<QIODevice>> render(const BandsDone &progress) const;

private:
    RasterDocument() = default;
    void arrange(ppd_file_t *ppd, int copies);
    int bands() const;

    DotPages mPages;
    cups_page_header2_t mHeader{};
    /// The pages as they come out, by their places in mPages.pages; several times for copies that
    /// the printer does not make.
    std::vector<int> mOrder;
};

} // namespace dialog
