// SPDX-License-Identifier: Apache-2.0
#include "barcodes/InkIslands.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace barcodes {

namespace {

/// Ink that is so many pixels apart, or nearer, stands together.
constexpr int kGaps[] = {3, 6, 12, 24};
constexpr int kDark = 128;
/// The smallest code has 8 modules (Data Matrix) of 2 pixels.
constexpr int kLeastSide = 16;
constexpr int kLongestToShortest = 6;
constexpr std::size_t kMostParts = 600;

/// The picture in squares of pixels; a square with ink in it is set.
class Squares
{
public:
    Squares(const ZXing::ImageView &picture, int side)
        : mSide(side)
        , mWidth((picture.width() + side - 1) / side)
        , mHeight((picture.height() + side - 1) / side)
        , mInk(std::size_t(mWidth) * std::size_t(mHeight), 0)
    {
        for (int y = 0; y < picture.height(); ++y) {
            std::uint8_t *row = &mInk[std::size_t(y / side) * std::size_t(mWidth)];
            for (int x = 0; x < picture.width(); ++x) {
                row[x / side] |= std::uint8_t(*picture.data(x, y) < kDark);
            }
        }
    }

    std::vector<Part> islands()
    {
        std::vector<Part> parts;
        for (int y = 0; y < mHeight; ++y) {
            for (int x = 0; x < mWidth; ++x) {
                if (take(x, y)) {
                    parts.push_back(islandFrom(x, y));
                }
            }
        }
        return parts;
    }

private:
    bool take(int x, int y)
    {
        if (x < 0 || y < 0 || x >= mWidth || y >= mHeight) {
            return false;
        }
        std::uint8_t &ink = mInk[std::size_t(y) * std::size_t(mWidth) + std::size_t(x)];
        return std::exchange(ink, std::uint8_t(0)) != 0;
    }

    Part islandFrom(int x, int y)
    {
        int left = x;
        int right = x;
        int top = y;
        int bottom = y;
        std::vector<std::pair<int, int>> open{{x, y}};
        while (!open.empty()) {
            const auto [atX, atY] = open.back();
            open.pop_back();
            left = std::min(left, atX);
            right = std::max(right, atX);
            top = std::min(top, atY);
            bottom = std::max(bottom, atY);
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (take(atX + dx, atY + dy)) {
                        open.emplace_back(atX + dx, atY + dy);
                    }
                }
            }
        }
        return {left * mSide, top * mSide, (right - left + 1) * mSide, (bottom - top + 1) * mSide};
    }

    int mSide;
    int mWidth;
    int mHeight;
    std::vector<std::uint8_t> mInk;
};

bool mayBeACode(const Part &part)
{
    const auto [shorter, longer] = std::minmax(part.width, part.height);
    return shorter >= kLeastSide && longer <= kLongestToShortest * shorter;
}

Part withPaper(const Part &part, const ZXing::ImageView &picture)
{
    const int edge = std::max(8, std::min(part.width, part.height) / 8);
    Part wider;
    wider.left = std::max(0, part.left - edge);
    wider.top = std::max(0, part.top - edge);
    wider.width = std::min(picture.width(), part.left + part.width + edge) - wider.left;
    wider.height = std::min(picture.height(), part.top + part.height + edge) - wider.top;
    return wider;
}

} // namespace

std::vector<Part> inkIslands(const ZXing::ImageView &picture)
{
    std::vector<Part> parts;
    for (const int gap : kGaps) {
        for (const Part &part : Squares(picture, gap).islands()) {
            const Part wider = withPaper(part, picture);
            if (mayBeACode(part) && std::find(parts.begin(), parts.end(), wider) == parts.end()) {
                parts.push_back(wider);
            }
        }
        // Letters come first and are many; the larger fields must not be lost over them.
        if (parts.size() > kMostParts) {
            std::nth_element(parts.begin(), parts.begin() + kMostParts / 2, parts.end(),
                             [](const Part &a, const Part &b) {
                                 return std::min(a.width, a.height) > std::min(b.width, b.height);
                             });
            parts.resize(kMostParts / 2);
        }
    }
    return parts;
}

} // namespace barcodes
