// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorControls.h"

#include "imaging/ColorControlsRows.h"

#include <cmath>

namespace imaging {
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

void filterWithTable(const ToneTable &table, const std::uint8_t *from, std::uint8_t *to,
                     std::size_t pixels)
{
    for (std::size_t i = 0; i < pixels * 4; i += 4) {
        const bool visible = from[i + 3] != 0;
        to[i] = visible ? table[from[i]] : from[i];
        to[i + 1] = visible ? table[from[i + 1]] : from[i + 1];
        to[i + 2] = visible ? table[from[i + 2]] : from[i + 2];
        to[i + 3] = from[i + 3];
    }
}

std::size_t filterNothing(const FixedPointMap &, const std::uint8_t *, std::uint8_t *, std::size_t)
{
    return 0;
}

RowFilter rowFilter(ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return filterRowAvx2;
    case ProcessorPath::Sse2:
        return filterRowSse2;
#endif
    default:
        return filterNothing;
    }
}

} // namespace

ColorControls::ColorControls(ColorPass first, ColorPass second)
    : mTable()
{
    for (std::size_t value = 0; value < mTable.size(); ++value) {
        mTable[value] = rounded(filtered(filtered(double(value), first), second));
    }
    mFixedPoint = fixedPointFor(mTable, double(first.contrast) * double(second.contrast));
}

void ColorControls::apply(PixelRows<const std::uint8_t> from, PixelRows<std::uint8_t> to) const
{
    apply(from, to, fastestPath());
}

void ColorControls::apply(PixelRows<const std::uint8_t> from, PixelRows<std::uint8_t> to,
                          ProcessorPath path) const
{
    const RowFilter filterRow = mFixedPoint ? rowFilter(path) : filterNothing;
    const FixedPointMap map = mFixedPoint.value_or(FixedPointMap());
    for (std::size_t y = 0; y < from.height; ++y) {
        const std::uint8_t *source = from.bytes + y * from.bytesPerRow;
        std::uint8_t *target = to.bytes + y * to.bytesPerRow;
        const std::size_t done = filterRow(map, source, target, from.width);
        filterWithTable(mTable, source + done * 4, target + done * 4, from.width - done);
    }
}

} // namespace imaging
