// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/DotForm.h"
#include "dialog/SheetLayout.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace dialog {

/// Some rows of a label in 8 bits, without gaps.
struct PixelBand
{
    /// The first of them, from the top of the dots.
    int firstRow = 0;
    int rows = 0;
    /// DotForm::dots.width() pixels a row, of one byte (grey) or three (red, green, blue).
    std::vector<std::uint8_t> bytes;
};

/// A page of a document on its label as 8-bit pixels, one for each dot of the printer. What of the
/// label no page covers is white. Type and shapes have hard edges: shades along them would be
/// halftoned, and bars and thin letters come out ragged.
///
/// It is rendered in bands that depend on the label alone, so that whoever asks gets the same
/// pixels, and a long label takes the memory of a band; but a page of a PDF document or a drawing
/// is kept as a whole meanwhile (DocumentPages::kMostPixelsOfPdfPage). A value; any thread, a call
/// may have to wait for another one with the same document.
class SheetPixels
{
public:
    /// The pixels of a band, about; the rows of one depend on the width.
    static constexpr int kPixelsOfBand = 2 * 1024 * 1024;

    /// `page` is counted from 0. A sheet without a size is as large as the page.
    SheetPixels(std::shared_ptr<const DocumentPages> document, int page, const Sheet &sheet,
                Scaling scaling, const DotForm &form);

    const DotForm &form() const { return mForm; }

    /// Whether no band can be rendered, because page or label have too many dots.
    bool isTooLarge() const;

    /// How many bands make the label, from top to bottom.
    int bands() const;

    /// Band `index`, counted from 0. The failure is that of the damaged page.
    Result<PixelBand> band(int index) const;

private:
    int rowsOfBand() const;
    Result<QImage> pageWithin(const QRect &part) const;

    std::shared_ptr<const DocumentPages> mDocument;
    int mPage;
    DotForm mForm;
    /// Where the page lies, in whole dots; parts of it may be outside of the label.
    QRect mPlace;
    bool mTurned = false;
};

} // namespace dialog
