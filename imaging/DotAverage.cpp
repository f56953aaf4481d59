// SPDX-License-Identifier: Apache-2.0
#include "imaging/DotAverage.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace imaging {
namespace {

/// The dots of a byte as masks of 16 bits, the first dot first.
using Masks = std::array<std::int16_t, 8>;

constexpr std::array<Masks, 256> kMasks = [] {
    std::array<Masks, 256> masks{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        for (unsigned dot = 0; dot < 8; ++dot) {
            masks[byte][dot] = (byte >> (7 - dot)) & 1U ? -1 : 0;
        }
    }
    return masks;
}();

bool hasInk(std::span<const std::uint8_t> bits)
{
    return std::any_of(bits.begin(), bits.end(), [](std::uint8_t byte) { return byte != 0; });
}

/// In groups of a fixed length, which the compiler turns into few instructions.
std::int32_t weighted(std::span<const std::int16_t> weights, const std::int16_t *dots)
{
    std::int32_t sum = 0;
    for (std::size_t from = 0; from < weights.size(); from += AverageWeights::kGroup) {
        for (std::size_t k = 0; k < AverageWeights::kGroup; ++k) {
            sum += std::int32_t(weights[from + k]) * dots[from + k];
        }
    }
    return sum;
}

} // namespace

// The weights of the last pixels go on behind the last dot.
DotAverage::Plane::Plane(std::size_t width, std::size_t rows)
    : mRows(rows,
            Row{std::vector<std::int16_t>((width + 7) / 8 * 8 + AverageWeights::kGroup), true})
{ }

void DotAverage::Plane::add(std::size_t row, std::int16_t weight,
                            std::span<const std::uint8_t> bits)
{
    Row &sums = mRows[row % mRows.size()];
    sums.isEmpty = false;
    std::int16_t *sum = sums.sums.data();
    for (const std::uint8_t byte : bits) {
        // Taken out and put back as a whole, which the compiler turns into few instructions.
        Masks eight;
        std::memcpy(eight.data(), sum, sizeof eight);
        for (std::size_t dot = 0; dot < 8; ++dot) {
            eight[dot] = std::int16_t(eight[dot] + (kMasks[byte][dot] & weight));
        }
        std::memcpy(sum, eight.data(), sizeof eight);
        sum += 8;
    }
}

void DotAverage::Plane::take(std::size_t row, const AverageWeights &across,
                             std::span<std::uint8_t> pixels)
{
    Row &sums = mRows[row % mRows.size()];
    if (sums.isEmpty) {
        std::fill(pixels.begin(), pixels.end(), std::uint8_t(0));
        return;
    }
    constexpr std::int64_t kWhole = std::int64_t(AverageWeights::kOne) * AverageWeights::kOne;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::int64_t ink = weighted(across.of(i), sums.sums.data() + across.first(i));
        pixels[i] = std::uint8_t((ink * 255 + kWhole / 2) / kWhole);
    }
    std::fill(sums.sums.begin(), sums.sums.end(), std::int16_t(0));
    sums.isEmpty = true;
}

DotAverage::DotAverage(Extent dots, Extent pixels)
    : mDots(dots)
    , mAcross(dots.width, pixels.width)
    , mDown(dots.height, pixels.height)
    , mBlack(dots.width, mDown.mostPixelsOfADot())
    , mRed(dots.width, mDown.mostPixelsOfADot())
    , mBlackPixels(pixels.width)
    , mRedPixels(pixels.width)
{ }

bool DotAverage::row(std::span<const std::uint8_t> black, std::span<const std::uint8_t> red,
                     const Sink &sink)
{
    if (mDotRow >= mDots.height || black.size() != rowBytes()
        || (!red.empty() && red.size() != rowBytes())) {
        return false;
    }
    const bool inBlack = hasInk(black);
    const bool inRed = hasInk(red);
    for (std::size_t y = mPixelRow; y < mDown.pixels() && mDown.first(y) <= mDotRow; ++y) {
        const std::int16_t weight = mDown.of(y)[mDotRow - mDown.first(y)];
        if (inBlack) {
            mBlack.add(y, weight, black);
        }
        if (inRed) {
            mRed.add(y, weight, red);
        }
    }
    ++mDotRow;
    for (; mPixelRow < mDown.pixels() && mDown.end(mPixelRow) <= mDotRow; ++mPixelRow) {
        finish(mPixelRow, sink);
    }
    return true;
}

void DotAverage::finish(std::size_t y, const Sink &sink)
{
    mBlack.take(y, mAcross, mBlackPixels);
    mRed.take(y, mAcross, mRedPixels);
    // Both may have been rounded up.
    for (std::size_t i = 0; i < mBlackPixels.size(); ++i) {
        mRedPixels[i] = std::min(mRedPixels[i], std::uint8_t(255 - mBlackPixels[i]));
    }
    sink(y, mBlackPixels, mRedPixels);
}

} // namespace imaging
