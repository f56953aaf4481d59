// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/FixedPointMap.h"

#include <cstddef>
#include <cstdint>

// The inner loops of the colour-controls filter. Each filters as many whole pixels from the front
// of a row as it can and returns how many; the caller does the rest with the table.

namespace imaging {

using RowFilter = std::size_t (*)(const FixedPointMap &map, const std::uint8_t *from,
                                  std::uint8_t *to, std::size_t pixels);

#if defined(__x86_64__)
std::size_t filterRowSse2(const FixedPointMap &map, const std::uint8_t *from, std::uint8_t *to,
                          std::size_t pixels);

/// Only on a processor that has AVX2.
std::size_t filterRowAvx2(const FixedPointMap &map, const std::uint8_t *from, std::uint8_t *to,
                          std::size_t pixels);
#endif

} // namespace imaging
