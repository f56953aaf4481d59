// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/Screen.h"

// The inner loops of a screen. Each makes the bits of as many pixels from the front of a row as it
// can, a multiple of 8, and returns how many; the caller does the rest.

namespace imaging {

#if defined(__x86_64__)
std::size_t screenSse2(const ScreenRow &row, const std::uint8_t *grey, std::size_t width,
                       std::uint8_t *ink);

/// Only on a processor that has AVX2.
std::size_t screenAvx2(const ScreenRow &row, const std::uint8_t *grey, std::size_t width,
                       std::uint8_t *ink);
#endif

} // namespace imaging
