// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionWeights.h"
#include "imaging/Separation.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace imaging {

/// Makes dots of white, black and red by error diffusion of the three together: each pixel takes
/// the colour of which most is due there, and what it prints too much or too little of each goes on
/// as in ErrorDiffusion. A row without red gives the very dots of ErrorDiffusion.
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
               std::uint8_t *redInk);

private:
    /// So much of paper and of red, in 16ths of a tone; what is missing of the whole is black.
    struct Amounts
    {
        std::int32_t paper = 0;
        std::int32_t red = 0;
    };

    enum class Dot
    {
        Paper,
        Black,
        Red
    };

    static Amounts due(const Shares &shares, const Amounts &errors);
    static Dot dotOf(const Amounts &due);
    static Amounts start(std::size_t x, std::size_t y);

    void gather();
    Dot diffuse(std::size_t x, std::ptrdiff_t step, Amounts *ahead);
    void goThrough(std::uint8_t *blackInk, std::uint8_t *redInk);
    void keepRest(const Amounts &left, const Amounts &right);

    std::size_t mWidth;
    std::size_t mRow = 0;
    DiffusionTable mTable;
    std::vector<Shares> mShares; ///< With a margin on either side, as the errors.
    std::vector<Amounts> mErrors; ///< From above; while a row is gone through, what goes down.
    std::vector<Amounts> mAside; ///< And what goes beside; the first place is left of the page.
};

} // namespace imaging
