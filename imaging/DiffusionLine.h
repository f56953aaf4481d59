// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionParts.h"
#include "imaging/DiffusionWeights.h"

#include <algorithm>
#include <array>
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

/// The part of an error that goes ahead or behind. Twice the error is cut to 16 bits; a page in
/// black never gets there.
constexpr int partOf(int error, int weight)
{
    return (std::clamp(2 * error, -32768, 32767) * weight) >> 8;
}

/// What is left of a value once the dot is known, `full` being taken away. No branch: the outcome
/// is as good as random, and a processor that guesses it wrong loses more time than a pixel takes.
constexpr int without(int value, int full, bool taken)
{
    return value - (full & -int(taken));
}

constexpr bool isExtreme(std::uint8_t tone)
{
    return tone == 0 || tone == 255;
}

/// One row of error diffusion at work. The arrays have `width` places, whole groups; `aside` has
/// one more on either side, `sums` and `ahead` have a block more. There the sums are kCertain and
/// the weights 0: parts that reach beyond the row end there.
struct DiffusionLine
{
    std::size_t width = 0;
    RowParts parts;
    const std::uint8_t *tones = nullptr;
    const std::uint8_t *noise = nullptr; ///< The row's blue noise, kBlueNoiseSide of it.
    const DiffusionTable *table = nullptr;
    std::int16_t *down = nullptr; ///< What the pixel above leaves to each pixel.
    std::int16_t *aside = nullptr; ///< What the pixel beside that one leaves, in the next row.
    std::int16_t *sums = nullptr; ///< Tone and errors together, less the middle: ink if negative.
    std::uint8_t *ahead = nullptr; ///< Each pixel's weights.
    std::uint8_t *behind = nullptr;
    std::uint8_t *ink = nullptr;
};

/// Fills the blocks beside a row.
inline void setSides(std::int16_t *sums, std::size_t width, int value)
{
    std::fill_n(sums - kBlock, kBlock, std::int16_t(value));
    std::fill_n(sums + width, kBlock, std::int16_t(value));
}

/// Clears the places at the sides of a row of what goes aside, which groups of pixels may pass by.
inline void clearSides(std::int16_t *aside, std::size_t width)
{
    std::fill_n(aside - 1, 2, std::int16_t(0));
    std::fill_n(aside + width - 1, 2, std::int16_t(0));
}

/// What is left at the end of each part; nothing at an end beyond the row.
using PartEnds = std::array<std::int16_t, kParts>;

#if defined(__x86_64__)
/// Tones and what the row above left, into `sums`, and the tones' weights.
void gatherSse2(const DiffusionLine &line);

/// Takes the errors along the row.
PartEnds carrySse2(const DiffusionLine &line);

/// Dots, and the errors that go down, out of `sums` and the weights.
void distributeSse2(const DiffusionLine &line);

// These only on a processor that has AVX2.
void gatherAvx2(const DiffusionLine &line);
PartEnds carryAvx2(const DiffusionLine &line);
void distributeAvx2(const DiffusionLine &line);
#endif

} // namespace imaging
