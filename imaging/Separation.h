// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/ColorControls.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>

namespace imaging {

/// How much of a place is white paper and how much red, out of 255; the rest is black.
struct Shares
{
    std::uint8_t paper = 255;
    std::uint8_t red = 0;

    std::uint8_t black() const { return std::uint8_t(255 - paper - red); }
};

/// How a red level divides ink between red and black, as whole numbers: so many 512ths of the black
/// ink go from red to black, so many 512ths of the red ink from black to red.
struct RedBorder
{
    std::uint16_t toBlack = 0;
    std::uint16_t toRed = 0;
    std::uint16_t allToBlack = 0; ///< 255 at the lowest level: even pure red is black then.
};

/// For a level of -20 .. +20. Each higher level leaves as much red or more.
RedBorder redBorder(int redLevel);

/// The shares of a toned colour.
///
/// Red ink is what red has beyond the stronger of green and blue, less an eighth of what red lacks
/// of 255, so that dark colours with a slight tint stay black. Paper makes up the colour's grey,
/// black the rest: the three together are as dark as the colour. Then the border moves ink between
/// red and black; the paper stays. Neutral colours have no red at any level.
Shares sharesOf(unsigned red, unsigned green, unsigned blue, const RedBorder &border);

/// Turns rows of red, green and blue into rows of shares. Immutable; any thread.
class Separation
{
public:
    Separation(const ColorControls &tones, int redLevel);

    /// `rgb` has 3 * width bytes, `paper` and `red` have `width`; none overlap.
    void apply(const std::uint8_t *rgb, std::size_t width, std::uint8_t *paper, std::uint8_t *red,
               ProcessorPath path) const;

private:
    ColorControls mTones;
    RedBorder mBorder;
};

} // namespace imaging
