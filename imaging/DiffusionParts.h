// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>

namespace imaging {

/// Pixels are taken by the group where that is faster.
constexpr std::size_t kGroup = 32;

/// The parts of a row are gone through by so many pixels in turns.
constexpr std::size_t kBlock = 8;

/// The most parts of a row: a vector register has so many lanes.
constexpr std::size_t kParts = 8;

/// Rows go on at least so far beyond the page on either side, with the tone of the outermost pixel.
/// Where errors turn round, dots gather; nobody sees those.
constexpr std::size_t kMargin = 16;

/// The pixels of a row with its margins: whole groups.
constexpr std::size_t widthWithMargins(std::size_t width)
{
    return (width + 2 * kMargin + kGroup - 1) / kGroup * kGroup;
}

/// The order in which a row of error diffusion is gone through: in parts of one length, all at the
/// same time, each in the row's direction. With one way through the row a processor would wait at
/// every pixel for the error of the last. The outermost parts reach beyond the row.
struct RowParts
{
    std::size_t width = 0;
    bool rightward = true;
    std::ptrdiff_t start = 0; ///< Of the first part: 0 or less.
    std::size_t turns = 0; ///< The blocks of a part.

    /// Leads from a pixel to the next one of its part.
    std::ptrdiff_t step() const { return rightward ? 1 : -1; }

    std::ptrdiff_t begin(std::size_t part) const
    {
        return start + std::ptrdiff_t(part * turns * kBlock);
    }

    /// Where the part's block in a turn begins.
    std::ptrdiff_t block(std::size_t part, std::size_t turn) const
    {
        return begin(part) + std::ptrdiff_t((rightward ? turn : turns - 1 - turn) * kBlock);
    }

    /// The part's pixel in a turn of `turns * kBlock`.
    std::ptrdiff_t pixel(std::size_t part, std::size_t turn) const
    {
        return rightward ? begin(part) + std::ptrdiff_t(turn)
                         : begin(part + 1) - 1 - std::ptrdiff_t(turn);
    }

    /// Whether such a block is neither in the row nor next to it.
    bool isOutside(std::ptrdiff_t block) const
    {
        return block < -std::ptrdiff_t(kBlock) || block > std::ptrdiff_t(width);
    }

    /// The pixel that follows on the last one of a part: where what is left goes on.
    std::ptrdiff_t behindEnd(std::size_t part) const
    {
        return rightward ? begin(part + 1) : begin(part) - 1;
    }

    /// The place next to the row where it ends.
    std::ptrdiff_t behindRow() const { return rightward ? std::ptrdiff_t(width) : -1; }
};

/// Rows go in turns to the right and to the left. Where parts meet is elsewhere in each row, so
/// that it cannot be seen. `width` is a whole number of groups.
RowParts rowParts(std::size_t row, std::size_t width);

/// What is left at the end of a part goes on below, in halves to the pixel that would have had it
/// and to the next: calls give(pixel, error). At the end of the row its last pixel gets it all.
template <typename Give>
void goOn(const RowParts &parts, std::ptrdiff_t behindEnd, int rest, Give give)
{
    const auto last = std::ptrdiff_t(parts.width) - 1;
    give(std::clamp(behindEnd, std::ptrdiff_t(0), last), rest - rest / 2);
    give(std::clamp(behindEnd + parts.step(), std::ptrdiff_t(0), last), rest / 2);
}

} // namespace imaging
