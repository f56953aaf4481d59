// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/AverageWeights.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace imaging {

/// So many dots or pixels across and down.
struct Extent
{
    std::size_t width = 0;
    std::size_t height = 0;
};

/// Makes a picture of a page of dots in any other size: each pixel is what the dots under it look
/// like from afar, the part of the paper that is inked. So a halftone of a tone gets that tone, and
/// no pattern of its own (AverageWeights.h).
///
/// Rows go in from the top; memory depends on the widths and on how many rows of pixels see a row
/// of dots, not on the length of the page. A page has an object of its own. One thread at a time.
class DotAverage
{
public:
    /// Row `y` of the picture: how much of each pixel is black and how much is red, 0 to 255, and
    /// not more than 255 together. The spans are valid during the call.
    using Sink = std::function<void(std::size_t y, std::span<const std::uint8_t> black,
                                    std::span<const std::uint8_t> red)>;

    /// For a page of `dots` and a picture of `pixels`; one without any gets no rows.
    DotAverage(Extent dots, Extent pixels);

    /// The bytes of a row of dots: 8 dots a byte, the first in the most significant bit.
    std::size_t rowBytes() const { return (mDots.width + 7) / 8; }

    /// Takes the next row of the page; `red` may be empty, and no dot is in both. Rows of the
    /// picture that see no later dot go to `sink`, from the top, and the last row of dots
    /// completes the picture. False, and nothing done, for a row of another length or one too many.
    [[nodiscard]] bool row(std::span<const std::uint8_t> black, std::span<const std::uint8_t> red,
                           const Sink &sink);

private:
    /// The dots of one colour, averaged downwards, for each row of pixels that is begun.
    class Plane
    {
    public:
        Plane(std::size_t width, std::size_t rows);
        void add(std::size_t row, std::int16_t weight, std::span<const std::uint8_t> bits);
        /// Averages the row across and forgets it.
        void take(std::size_t row, const AverageWeights &across, std::span<std::uint8_t> pixels);

    private:
        struct Row
        {
            std::vector<std::int16_t> sums;
            bool isEmpty = true;
        };
        std::vector<Row> mRows;
    };

    void finish(std::size_t y, const Sink &sink);

    Extent mDots;
    AverageWeights mAcross;
    AverageWeights mDown;
    Plane mBlack;
    Plane mRed;
    std::vector<std::uint8_t> mBlackPixels;
    std::vector<std::uint8_t> mRedPixels;
    /// The next row of dots, and of pixels.
    std::size_t mDotRow = 0;
    std::size_t mPixelRow = 0;
};

} // namespace imaging
