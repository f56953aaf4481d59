// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/FixedPointMap.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace imaging {

/// One pass of the colour-controls filter: brightness is added, contrast spreads the tones around
/// the middle. Tones run from 0 to 1; saturation stays as it is. The defaults change nothing.
struct ColorPass
{
    float brightness = 0.0F;
    float contrast = 1.0F;
};

/// Rows of pixels of 4 bytes: red, green, blue and alpha, not premultiplied.
/// Row y starts at `bytes[y * bytesPerRow]`; what stands between the rows is never read or written.
template <typename Byte> struct PixelRows
{
    Byte *bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t bytesPerRow = 0;
};

/// Two passes of the colour-controls filter over 8-bit pixels, done in one sweep.
///
/// The second pass works on the unclamped result of the first; tones are clamped and rounded once,
/// at the end. Alpha is kept, and a pixel of alpha 0 is kept whole. Any thread.
class ColorControls
{
public:
    ColorControls(ColorPass first, ColorPass second);

    /// What becomes of each value of red, green and blue.
    const ToneTable &table() const { return mTable; }

    /// The table as arithmetic for vector units; without it the table is looked up.
    const std::optional<FixedPointMap> &fixedPoint() const { return mFixedPoint; }

    /// Filters `from` into `to`, which has the same size and is either the same memory or apart.
    void apply(PixelRows<const std::uint8_t> from, PixelRows<std::uint8_t> to) const;

    /// The same, done in a way that is one of processorPaths().
    void apply(PixelRows<const std::uint8_t> from, PixelRows<std::uint8_t> to,
               ProcessorPath path) const;

private:
    ToneTable mTable;
    std::optional<FixedPointMap> mFixedPoint;
};

} // namespace imaging
