// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/PageDots.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <functional>
#include <vector>

namespace dialog {

/// What red dots are to a scanner. It sees with red light, so they are paper to it.
enum class RedDots
{
    Paper,
    Ink
};

/// Paper and ink to look at: a part of it in grey, white beyond its edges.
struct InkTones
{
    std::function<Result<QImage>(const QRect &part)> part;
    /// How high a dot is next to how wide it is, and the other way round, in whole numbers.
    QSize shape{1, 1};
};

/// The dots of a label. `dots` outlives them.
InkTones tonesOf(const PageDots &dots, RedDots red);

/// The dots that `settings` would make of a page that has `pixels` of them. `document` outlives
/// them.
InkTones tonesOf(const DocumentPages &document, int page, const QSize &pixels,
                 const imaging::PageSettings &settings);

/// How a scanner looks at a code.
struct ScannerLook
{
    /// The paper around the code that it takes in, in dots.
    int margin = 0;
    /// What it does not tell apart, in dots.
    int blur = 1;
};

/// The looks that a scanner takes at a code whose narrowest bars are `bars` dots wide until it
/// reads it; the sharpest first.
std::vector<ScannerLook> scannerLooks(double bars);

/// How many dots the unit of `place` and `bars` can have at most, so that a scanner takes in the
/// code at once.
double mostDotsFor(const QRectF &place, double bars);

/// What a scanner sees of the code at `place`, in dots; `bars` as above. Format_Grayscale8. A code
/// that it cannot take in at once is white paper.
Result<QImage> scannerView(const InkTones &tones, const QRectF &place, double bars,
                           const ScannerLook &look);

} // namespace dialog
