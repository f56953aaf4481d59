// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionWeights.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace imaging {

// Errors are counted in 16ths of a tone.
constexpr int kFull = 16 * 255;
constexpr int kHalf = kFull / 2;

/// An error from above is cut to this. Only a picture made to drive errors together gets there.
constexpr int kErrorLimit = kFull;

/// Stands for a tone that no error can change.
constexpr int kCertain = 1 << 14;

/// Pixels are taken by the group where that is faster.
constexpr std::size_t kGroup = 16;

/// Rows go on so far beyond the page on either side, with the tone of the outermost pixel. Where
/// errors turn round, dots gather; nobody sees those.
constexpr std::size_t kMargin = kGroup;

/// What is left where a way ends goes on below, over so many pixels; in one place it would draw a
/// line of dots.
constexpr int kShares = 8;

/// Gives each of these pixels its share of `rest`, beginning with `at`: calls give(pixel, share).
/// The last pixel of the row gets what would go beyond.
template <typename Give>
void goOn(std::ptrdiff_t at, std::ptrdiff_t step, std::size_t width, int rest, Give give)
{
    const auto last = std::ptrdiff_t(width) - 1;
    for (int share = kShares; share > 0; --share, at += step) {
        give(std::clamp(at, std::ptrdiff_t(0), last), rest / share);
        rest -= rest / share;
    }
}

constexpr std::size_t wholeGroups(std::size_t width)
{
    return (width + kGroup - 1) / kGroup * kGroup;
}

/// What pure black and white leave below instead of an error is marked: noise around this.
constexpr int kStart = 1 << 14;
constexpr int kLeastStart = 3 << 12;

constexpr int startOf(std::uint8_t noise)
{
    return kStart + (noise - 128) * 8;
}

/// The error that comes from above on average in a large area of the tone, as measured: dark tones
/// owe white, light ones black. An area that begins with it begins with dots, not with a gap.
constexpr int usualError(int tone)
{
    return std::clamp((112 - tone) * 8, 0, 560) - std::clamp((tone - 143) * 8, 0, 560);
}

/// The error of a pixel of `tone` by what comes from above and from above aside.
constexpr int errorFromAbove(int down, int aside, int tone)
{
    const int straight = down >= kLeastStart ? down - kStart + usualError(tone) : down;
    return std::clamp(straight + aside, -kErrorLimit, kErrorLimit);
}

constexpr bool isExtreme(std::uint8_t tone)
{
    return tone == 0 || tone == 255;
}

/// The order in which a row is gone through: the pixels left of the seam and those from it on at
/// the same time, towards the seam in one row and away from it in the next. Two errors under way
/// keep the processor busy while one would have it wait.
struct RowOrder
{
    std::size_t seam = 0; ///< A whole number of groups.
    bool inward = true;

    /// +1 or -1: where the pixel's error is carried to.
    std::ptrdiff_t step(std::size_t x) const { return (x < seam) == inward ? 1 : -1; }

    /// Where what is left of the way through the left side goes on to the right in the row below.
    std::ptrdiff_t leftEnd() const { return inward ? std::ptrdiff_t(seam) : 1; }

    /// And of the right side, where it goes on to the left.
    std::ptrdiff_t rightEnd(std::size_t width) const
    {
        return (inward ? std::ptrdiff_t(seam) : std::ptrdiff_t(width) - 1) - 1;
    }
};

/// The seam is near the middle and moves from row to row, so that it cannot be seen. A narrow page
/// has it at its left side: every row is gone through as a whole.
RowOrder rowOrder(std::size_t row, std::size_t width);

/// One row of error diffusion at work. The arrays have room for whole groups of pixels, and `tones`
/// is white behind the last pixel; `aside` has one place more on either side.
struct DiffusionLine
{
    std::size_t width = 0;
    RowOrder order;
    const std::uint8_t *tones = nullptr;
    const std::uint8_t *noise = nullptr; ///< The row's blue noise, kBlueNoiseSide of it.
    const DiffusionTable *table = nullptr;
    std::int16_t *down = nullptr; ///< What the pixel above leaves to each pixel.
    std::int16_t *aside = nullptr; ///< What the pixel beside that one leaves, in the next row.
    std::int16_t *sums = nullptr; ///< Tone and errors together, less the middle: ink if negative.
    DiffusionWeights *weights = nullptr;
    std::uint8_t *ink = nullptr;
};

#if defined(__x86_64__)
/// Tones and what the row above left, into `sums`.
void gatherSse2(const DiffusionLine &line);

/// Dots, and the errors that go down, out of `sums` and `weights`.
void distributeSse2(const DiffusionLine &line);

/// Whether the group's tones are all black or white.
bool allExtremeSse2(const std::uint8_t *tones);
#endif

} // namespace imaging
