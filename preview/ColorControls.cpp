// SPDX-License-Identifier: Apache-2.0
#include "preview/ColorControls.h"

#include <cmath>

namespace preview {
namespace {

constexpr double kMiddle = 127.5;

/// The stored values are taken as they are, without a transfer curve; a curve would go in here.
double filtered(double tone, ColorPass pass)
{
    return (tone + 255.0 * double(pass.brightness) - kMiddle) * double(pass.contrast) + kMiddle;
}

std::uint8_t rounded(double tone)
{
    if (tone >= 254.5) {
        return 255;
    }
    return tone > 0.0 ? std::uint8_t(std::floor(tone + 0.5)) : std::uint8_t(0);
}

void filterRow(const ColorControls::Table &table, const std::uint8_t *from, std::uint8_t *to,
               std::size_t width)
{
    for (std::size_t i = 0; i < width * 4; i += 4) {
        const bool visible = from[i + 3] != 0;
        to[i] = visible ? table[from[i]] : from[i];
        to[i + 1] = visible ? table[from[i + 1]] : from[i + 1];
        to[i + 2] = visible ? table[from[i + 2]] : from[i + 2];
        to[i + 3] = from[i + 3];
    }
}

} // namespace

ColorControls::ColorControls(ColorPass first, ColorPass second)
    : mTable()
{
    for (std::size_t value = 0; value < mTable.size(); ++value) {
        mTable[value] = rounded(filtered(filtered(double(value), first), second));
    }
}

void ColorControls::apply(PixelRows<const std::uint8_t> from, PixelRows<std::uint8_t> to) const
{
    for (std::size_t y = 0; y < from.height; ++y) {
        filterRow(mTable, from.bytes + y * from.bytesPerRow, to.bytes + y * to.bytesPerRow,
                  from.width);
    }
}

} // namespace preview
