// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace imaging {

constexpr std::size_t kBlueNoiseSide = 128;

/// Thresholds of a dispersed-dot matrix, 1 .. 255, each about equally often: the place is inked
/// when the tone is below its threshold. Tiles in both directions. Made by blue_noise/ during the
/// build.
extern const std::uint8_t kBlueNoise[kBlueNoiseSide][kBlueNoiseSide];

/// The threshold at the place of `rank` of `ranks`. With these, tone v out of 255 leaves (255 - v)
/// / 255 of the places inked, to within one place: all at 0, none at 255.
constexpr std::uint8_t thresholdOfRank(std::size_t rank, std::size_t ranks)
{
    return std::uint8_t((255 * (2 * rank + 1) + 2 * ranks - 1) / (2 * ranks));
}

} // namespace imaging
