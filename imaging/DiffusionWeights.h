// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>

namespace imaging {

/// Which parts of an error go to the next pixel of the row and to the pixel behind it in the row
/// below, out of 65536; the rest goes straight down.
struct DiffusionWeights
{
    std::uint16_t ahead = 0;
    std::uint16_t behind = 0;
};

/// Weights for each tone, those of a tone and of its negative being equal. At 0 and 255 the error
/// ends: both weights are 0.
using DiffusionTable = std::array<DiffusionWeights, 256>;

/// The weights of error diffusion here. Any thread.
const DiffusionTable &diffusionTable();

} // namespace imaging
