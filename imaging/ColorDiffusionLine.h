// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionLine.h"

#include <cstddef>
#include <cstdint>

namespace imaging {

/// The shares of one colour in a row at work and its errors, as in DiffusionLine.
struct ColorPlaneLine
{
    const std::uint8_t *shares = nullptr;
    const std::uint8_t *noise = nullptr; ///< The row's, kBlueNoiseSide of it.
    std::size_t noiseOffset = 0; ///< Where in the noise the row begins, whole groups.
    std::int16_t *down = nullptr;
    std::int16_t *aside = nullptr;
    std::int16_t *sums = nullptr; ///< Share and error from above; then what is due.
};

/// One row of the diffusion of paper, black and red together at work. `sums`, `ahead` and `bars`
/// have a block more on either side, as in DiffusionLine: with no bar, and red sums of 0.
struct ColorDiffusionLine
{
    std::size_t width = 0;
    RowParts parts;
    const DiffusionTable *table = nullptr;
    ColorPlaneLine paper;
    ColorPlaneLine red;
    std::uint8_t *ahead = nullptr; ///< Each pixel's weights.
    std::uint8_t *behind = nullptr;
    std::uint16_t *bars = nullptr; ///< Which colours a pixel must not take.
    std::uint8_t *blackInk = nullptr;
    std::uint8_t *redInk = nullptr;
};

// Bits of `bars`.
constexpr int kNoPaper = 1 << 15;
constexpr int kNoRed = 1 << 14;
constexpr int kNoBlack = 1 << 13;
constexpr int kPure = 1 << 12; ///< Of one colour only: nothing can change it.

/// What is left at the end of each part.
struct ColorPartEnds
{
    PartEnds paper{};
    PartEnds red{};
};

#if defined(__x86_64__)
/// Shares and what the row above left, into the sums, and the weights and bars.
void gatherColorsSse2(const ColorDiffusionLine &line);

/// Takes the errors along the row.
ColorPartEnds carryColorsSse2(const ColorDiffusionLine &line);

/// Dots, and the errors that go down, out of what is due.
void distributeColorsSse2(const ColorDiffusionLine &line);

// These only on a processor that has AVX2.
void gatherColorsAvx2(const ColorDiffusionLine &line);
ColorPartEnds carryColorsAvx2(const ColorDiffusionLine &line);
void distributeColorsAvx2(const ColorDiffusionLine &line);
#endif

} // namespace imaging
