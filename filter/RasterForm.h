// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include <cups/raster.h>

namespace filter {

/// Dots of a row: 8 pixels a byte, the first in the most significant bit, 1 is ink, never in both.
struct DotRow
{
    std::span<const std::uint8_t> black;
    std::span<const std::uint8_t> red;
};

/// The kind of raster that a printer's filter takes, and how dots of black and red are written in
/// it: each colour of a pixel has all its bits set or all clear. Where there is no place for red,
/// red dots come out black.
struct RasterForm
{
    unsigned bits = 1; ///< for each colour, 1 or 8
    cups_cspace_t space = CUPS_CSPACE_K;
    cups_order_t order = CUPS_ORDER_CHUNKED;

    /// Whether dots can be written in it at all.
    bool isWritable() const;

    /// The colours of a pixel.
    unsigned colors() const;

    /// Whether the page is written as often as there are colours, one colour after the other.
    bool isPlanar() const { return order == CUPS_ORDER_PLANAR && colors() > 1; }

    /// Makes the header that of a page of this form; its width stays, and all else.
    void describe(cups_page_header2_t &header) const;

    /// Writes a row of `width` pixels into `row`, which has header.cupsBytesPerLine bytes of the
    /// described header. `plane` counts from 0 if the form is planar, else it is 0.
    void write(const DotRow &dots, std::size_t width, unsigned plane,
               std::span<std::uint8_t> row) const;
};

} // namespace filter
