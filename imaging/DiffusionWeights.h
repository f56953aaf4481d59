// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace imaging {

/// Which parts of an error go to the next pixel of the row and to the pixel behind it in the row
/// below, out of 128; the rest goes straight down.
struct DiffusionWeights
{
    std::uint8_t ahead = 0;
    std::uint8_t behind = 0;
};

/// Weights of the tones, four tones each, from black to the middle; a tone and its negative have
/// the same. So few that a vector unit looks them up without going to memory.
struct DiffusionTable
{
    static constexpr std::size_t kSize = 32;

    std::array<std::uint8_t, kSize> ahead{};
    std::array<std::uint8_t, kSize> behind{};

    /// Those of one tone. At 0 and 255 the error ends: both are 0.
    constexpr DiffusionWeights of(std::uint8_t tone) const
    {
        const std::size_t place = std::min<std::size_t>(tone, 255U - tone);
        return place == 0 ? DiffusionWeights{}
                          : DiffusionWeights{ahead[place / 4], behind[place / 4]};
    }
};

/// The weights of error diffusion here. Any thread.
const DiffusionTable &diffusionTable();

} // namespace imaging
