// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace imaging {

/// A dispersed-dot matrix of `side` x `side` places, row by row, by the void-and-cluster method
/// (R. Ulichney, "The void-and-cluster method for dither array generation", Proc. SPIE 1913, 1993).
///
/// Each rank 0 .. side * side - 1 stands at one place. The places of the ranks below any n are
/// spread as evenly as n places can be, across the edges too, so that the matrix tiles without a
/// seam. Integer arithmetic only: the same ranks with every compiler. `side` is 8 or more.
std::vector<std::uint16_t> voidAndClusterRanks(std::size_t side);

} // namespace imaging
