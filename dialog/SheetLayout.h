// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/JobSettings.h"

#include <QMarginsF>
#include <QRectF>
#include <QSizeF>

namespace dialog {

/// A label as it lies in front of the user: its size and the edges that the printer cannot reach,
/// in points (1/72 inch).
struct Sheet
{
    QSizeF size;
    QMarginsF margins;

    /// What the printer can reach, from the top left corner of the sheet. Empty when the margins
    /// leave nothing.
    QRectF imageableArea() const;

    bool operator==(const Sheet &other) const = default;
};

/// Where a page of a document stands on a sheet.
struct PagePlacement
{
    /// The page as it lies on the sheet, in points from the sheet's top left corner. It may reach
    /// beyond the sheet. Empty when page or sheet have no area.
    QRectF page;
    /// Points on the sheet for each point of the page.
    double scale = 0;
    /// The page lies a quarter turn counter-clockwise, because it is wide and the sheet is high, or
    /// the other way round. `page` is the turned page.
    bool turned = false;
    /// A part of the page is outside the sheet and is not printed.
    bool cropped = false;
};

/// The arithmetic of the print system's filters, so that the preview shows what they print.
///
/// Seen with the filters for PDF and for pictures alike: a page that is wider than high is turned
/// on a sheet that is not, and the other way round; a square page counts as high, and so does a
/// square sheet. Pure functions, any thread.
class SheetLayout
{
public:
    /// As large as the imageable area allows, small pages enlarged, and in the middle of that area
    /// (print-scaling=fit).
    static PagePlacement fit(const QSizeF &page, const Sheet &sheet);

    /// In its own size in the middle of the sheet, whatever the margins are; what reaches beyond
    /// the sheet is cut off (print-scaling=none).
    static PagePlacement actualSize(const QSizeF &page, const Sheet &sheet);

    /// The one of the two that `scaling` means. For whole dots, what becomes of a page that cannot
    /// have them; placeOnDots knows the dots.
    static PagePlacement place(const QSizeF &page, const Sheet &sheet, Scaling scaling);
};

} // namespace dialog
