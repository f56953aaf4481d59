// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/FixedPointMap.h"
#include "imaging/Separation.h"

#include <cstddef>
#include <cstdint>

// The inner loops of GreyRows and Separation. Each does as many pixels from the front of a row as
// it can and returns how many; the caller does the rest.

namespace imaging {

#if defined(__x86_64__)
std::size_t toneGreySse2(const FixedPointMap &tones, const std::uint8_t *from, std::size_t width,
                         std::uint8_t *grey);
std::size_t greyOfRgbSse2(const FixedPointMap &tones, const std::uint8_t *rgb, std::size_t width,
                          std::uint8_t *grey);
std::size_t separateSse2(const FixedPointMap &tones, const RedBorder &border,
                         const std::uint8_t *rgb, std::size_t width, std::uint8_t *paper,
                         std::uint8_t *red);

// These only on a processor that has AVX2.
std::size_t toneGreyAvx2(const FixedPointMap &tones, const std::uint8_t *from, std::size_t width,
                         std::uint8_t *grey);
std::size_t greyOfRgbAvx2(const FixedPointMap &tones, const std::uint8_t *rgb, std::size_t width,
                          std::uint8_t *grey);
std::size_t separateAvx2(const FixedPointMap &tones, const RedBorder &border,
                         const std::uint8_t *rgb, std::size_t width, std::uint8_t *paper,
                         std::uint8_t *red);
#endif

} // namespace imaging
