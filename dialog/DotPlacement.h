// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/DotForm.h"
#include "dialog/SheetLayout.h"

#include <QRect>

namespace dialog {

/// Where a page lies among the dots of a label, in whole dots.
struct DotPlacement
{
    /// The page as it lies; parts of it may be outside of the label. Empty when page or label have
    /// no area.
    QRect place;
    /// It lies a quarter turn counter-clockwise.
    bool turned = false;
    /// Each pixel of the page's picture is so many dots wide and high, as it lies; empty when the
    /// page has no pixels or they get no whole dots.
    QSize dotsOfPixel;
    /// Points on the label for each point of the page, across and down as it lies.
    QSizeF scale;

    /// `rectangle`, in points on an upright page of `pageSize`, in dots of the label.
    QRectF inDots(const QRectF &rectangle, const QSizeF &pageSize) const;
};

/// Puts page `page` of `document`, counted from 0, among the dots of a label. A sheet without a
/// size is as large as the page.
///
/// Scaling::WholeDots gives every pixel of a picture the same whole number of dots, the largest
/// with which the page fits into the imageable area; where a printer has more dots down than
/// across, or the other way round, each way has its own number, and they keep the picture's shape
/// as well as whole numbers can. A page without pixels, and a picture that is too large for one
/// dot a pixel, are placed as Scaling::Fit does. Any thread.
DotPlacement placeOnDots(const DocumentPages &document, int page, const Sheet &sheet,
                         Scaling scaling, const DotForm &form);

} // namespace dialog
