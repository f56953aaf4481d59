// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionWeights.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace imaging {

struct ColorDiffusionLine;
struct ColorPlaneLine;

/// Makes dots of white, black and red by error diffusion of the three together: each pixel takes
/// the colour of which most is due there, and what it prints too much or too little of each goes on
/// as in ErrorDiffusion. A page without red gets the very dots of ErrorDiffusion.
///
/// A pixel never takes a colour that it has no share of: black, white and pure red stay as they
/// are, and greys stay without red next to a red picture too. One thread at a time.
class ColorDiffusion
{
public:
    explicit ColorDiffusion(std::size_t width, const DiffusionTable &table = diffusionTable());

    /// Sets the bits of the page's next row: most significant bit first, 1 is ink, never in both;
    /// the bits behind the last pixel are 0. `paper` and `red` are Shares of `width` pixels,
    /// `blackInk` and `redInk` have (width + 7) / 8 bytes each.
    void apply(const std::uint8_t *paper, const std::uint8_t *red, std::uint8_t *blackInk,
               std::uint8_t *redInk, ProcessorPath path);

private:
    /// One colour. Rows have a margin on either side; `aside` and `sums` have more beyond that, as
    /// ColorDiffusionLine says.
    struct Plane
    {
        explicit Plane(std::size_t width);
        void setShares(const std::uint8_t *row, std::size_t width);
        ColorPlaneLine line(std::size_t row, std::size_t offset);

        std::vector<std::uint8_t> shares;
        std::vector<std::int16_t> sums;
        std::vector<std::int16_t> down;
        std::vector<std::int16_t> aside;
        std::vector<std::uint8_t> ink; ///< The paper's plane has the black dots here.
    };

    void diffuse(ProcessorPath path);

    std::size_t mWidth;
    std::size_t mRow = 0;
    DiffusionTable mTable;
    Plane mPaper;
    Plane mRed;
    std::vector<std::uint8_t> mAhead;
    std::vector<std::uint8_t> mBehind;
    std::vector<std::uint16_t> mBars;
};

} // namespace imaging
