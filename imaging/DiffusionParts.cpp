// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionParts.h"

#include "imaging/BlueNoise.h"

namespace imaging {
namespace {

/// Shorter parts would meet too close to each other.
constexpr std::size_t kLeastTurns = 8;

constexpr std::size_t kNoiseSteps = 255 * 255;

/// Evenly spread below kNoiseSteps, other values in each 128 rows.
std::size_t noiseOf(std::size_t row)
{
    const std::size_t inTile = row % kBlueNoiseSide;
    const std::size_t tile = row / kBlueNoiseSide % kBlueNoiseSide;
    return (kBlueNoise[inTile][tile] - 1U) * 255U + (kBlueNoise[tile][inTile] - 1U);
}

} // namespace

RowParts rowParts(std::size_t row, std::size_t width)
{
    const std::size_t blocks = width / kBlock;
    // One part more, because the outermost two are cut by the sides of the row.
    const std::size_t whole = std::clamp(blocks / kLeastTurns, std::size_t(1), kParts - 1);
    const std::size_t turns = (blocks + whole - 1) / whole;
    const std::size_t length = turns * kBlock;
    const auto second = std::ptrdiff_t(noiseOf(row) * length / kNoiseSteps);
    return {width, row % 2 == 0, second - std::ptrdiff_t(length), turns};
}

} // namespace imaging
