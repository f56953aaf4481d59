// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/ColorControls.h"
#include "imaging/PageSettings.h"
#include "imaging/ProcessorPath.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace imaging {

/// The places of a row of a screen repeat after so many pixels.
constexpr std::size_t kScreenWidth = 128;

/// One row of a screen, ready for vector units: a pixel is inked when its value is at most
/// `highest` of its place and the bit of its place in `never` is clear.
struct ScreenRow
{
    alignas(32) std::array<std::uint8_t, kScreenWidth> highest;
    alignas(32) std::array<std::uint8_t, kScreenWidth / 8> never; ///< Most significant bit first.
};

/// Makes dots of grey by comparing each pixel with the threshold of its place: one threshold for
/// Binary, the blue-noise matrix for Dither. Immutable; any thread.
class Screen
{
public:
    /// A pixel of value v is inked when `tones[v]` is below the threshold of its place. `tones`
    /// must never fall. `method` is Binary or Dither.
    Screen(HalftoneMethod method, const ToneTable &tones);

    /// Sets the bits of row `y` of the page: most significant bit first, 1 is ink; the bits behind
    /// the last pixel are 0. `ink` has (width + 7) / 8 bytes.
    void apply(std::size_t y, const std::uint8_t *grey, std::size_t width, std::uint8_t *ink,
               ProcessorPath path) const;

private:
    std::vector<ScreenRow> mRows;
};

} // namespace imaging
