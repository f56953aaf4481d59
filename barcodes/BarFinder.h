// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "barcodes/FoundCode.h"

#include <cstdint>
#include <vector>

#include <ZXing/ReadBarcode.h>

namespace barcodes {

/// Finds codes of bars in strips of a picture and puts together what belongs to the same code.
///
/// The library is asked for one code at a time: asked for several, or to look at a smaller copy as
/// well, its version 1.4 compares a code with itself and ends the program (an assertion, and
/// Debian's build has them on).
class BarFinder
{
public:
    /// Looks for codes of `formats`, of which there is at least one.
    explicit BarFinder(ZXing::BarcodeFormats formats);

    /// The codes that stand upright, or on their heads, in `picture`. Bars are believed when they
    /// are read at several heights.
    std::vector<FoundCode> find(const ZXing::ImageView &picture);

private:
    void readStrip(const ZXing::ImageView &picture, int top, int step);
    void whiten(int left, int right, int width);
    void put(const FoundCode &code, int gap);

    ZXing::DecodeHints mHints;
    std::vector<std::uint8_t> mStrip;
    std::vector<FoundCode> mCodes;
};

} // namespace barcodes
