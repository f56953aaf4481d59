// SPDX-License-Identifier: Apache-2.0
#include "barcodes/BarFinder.h"

#include "barcodes/CodeFormats.h"

#include <algorithm>
#include <utility>

namespace barcodes {

namespace {

/// A strip has so many lines, which stand some rows apart; two of them must agree.
constexpr int kLinesOfStrip = 6;
constexpr int kMostRowsBetweenLines = 4;
/// So many lines are looked at, about, before they are taken further apart.
constexpr int kLines = 700;
/// Bars that are lower than this part of their length are a coincidence of a photo.
constexpr double kLeastHeight = 0.03;
constexpr int kMostCodesOfStrip = 16;

int left(const FoundCode &code)
{
    return std::min(code.corners[0].x, code.corners[1].x);
}

int right(const FoundCode &code)
{
    return std::max(code.corners[0].x, code.corners[1].x);
}

int top(const FoundCode &code)
{
    return code.corners[0].y;
}

int bottom(const FoundCode &code)
{
    return code.corners[2].y;
}

} // namespace

BarFinder::BarFinder(ZXing::BarcodeFormats formats)
{
    mHints.setFormats(formats);
    mHints.setMaxNumberOfSymbols(1);
    mHints.setTryDownscale(false);
    mHints.setTryRotate(false);
}

std::vector<FoundCode> BarFinder::find(const ZXing::ImageView &picture)
{
    const int step = std::clamp(picture.height() / kLines, 1, kMostRowsBetweenLines);
    const int heightOfStrip = step * kLinesOfStrip;
    for (int y = 0; y < picture.height(); y += heightOfStrip) {
        readStrip(picture, y, step);
    }
    std::erase_if(mCodes, [&](const FoundCode &code) {
        const int height = bottom(code) - top(code) + 1;
        return height <= heightOfStrip || height < kLeastHeight * (right(code) - left(code));
    });
    return std::move(mCodes);
}

void BarFinder::readStrip(const ZXing::ImageView &picture, int y, int step)
{
    const int width = picture.width();
    const int lines = std::min(kLinesOfStrip, (picture.height() - y + step - 1) / step);
    mStrip.clear();
    for (int line = 0; line < lines; ++line) {
        for (int x = 0; x < width; ++x) {
            mStrip.push_back(*picture.data(x, y + line * step));
        }
    }
    const ZXing::ImageView strip(mStrip.data(), width, lines, ZXing::ImageFormat::Lum);
    for (int i = 0; i < kMostCodesOfStrip; ++i) {
        const ZXing::Result result = ZXing::ReadBarcode(strip, mHints);
        if (!result.isValid()) {
            return;
        }
        FoundCode code = foundCode(result, {});
        const int last = std::min(y + lines * step, picture.height()) - 1;
        for (std::size_t corner = 0; corner < 4; ++corner) {
            code.corners[corner].y = corner < 2 ? y : last;
        }
        whiten(left(code), right(code), width);
        put(code, step * kLinesOfStrip);
    }
}

// Makes room for what else stands in the strip.
void BarFinder::whiten(int left, int right, int width)
{
    const int first = std::clamp(left, 0, width);
    const int behind = std::clamp(right + 1, first, width);
    for (auto row = mStrip.begin(); row != mStrip.end(); row += width) {
        std::fill(row + first, row + behind, std::uint8_t(255));
    }
}

// Adds `code` to the one that ends at most a strip above it, or to the list.
void BarFinder::put(const FoundCode &code, int gap)
{
    for (FoundCode &other : mCodes) {
        const bool overlaps = left(code) <= right(other) && left(other) <= right(code);
        if (code.format == other.format && code.text == other.text && overlaps
            && top(code) <= bottom(other) + 1 + gap) {
            other.corners[2].y = code.corners[2].y;
            other.corners[3].y = code.corners[3].y;
            return;
        }
    }
    mCodes.push_back(code);
}

} // namespace barcodes
