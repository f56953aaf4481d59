// SPDX-License-Identifier: Apache-2.0
#include "imaging/Grey.h"

#include "imaging/ColorRows.h"

namespace imaging {
namespace {

std::size_t toneGrey(const FixedPointMap &tones, const std::uint8_t *from, std::size_t width,
                     std::uint8_t *grey, ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return toneGreyAvx2(tones, from, width, grey);
    case ProcessorPath::Sse2:
        return toneGreySse2(tones, from, width, grey);
#endif
    default:
        return 0;
    }
}

std::size_t greyOfRgb(const FixedPointMap &tones, const std::uint8_t *rgb, std::size_t width,
                      std::uint8_t *grey, ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return greyOfRgbAvx2(tones, rgb, width, grey);
    case ProcessorPath::Sse2:
        return greyOfRgbSse2(tones, rgb, width, grey);
#endif
    default:
        return 0;
    }
}

} // namespace

GreyRows::GreyRows(InputFormat format, const ColorControls &tones)
    : mFormat(format)
    , mTones(tones)
{ }

void GreyRows::apply(const std::uint8_t *pixels, std::size_t width, std::uint8_t *grey,
                     ProcessorPath path) const
{
    const ToneTable &table = mTones.table();
    const bool rgb = mFormat == InputFormat::Rgb24;
    std::size_t x = 0;
    if (mTones.fixedPoint()) {
        x = rgb ? greyOfRgb(*mTones.fixedPoint(), pixels, width, grey, path)
                : toneGrey(*mTones.fixedPoint(), pixels, width, grey, path);
    }
    if (!rgb) {
        for (; x < width; ++x) {
            grey[x] = table[pixels[x]];
        }
    }
    for (; x < width; ++x) {
        const std::uint8_t *pixel = pixels + x * 3;
        grey[x] = greyOf(table[pixel[0]], table[pixel[1]], table[pixel[2]]);
    }
}

} // namespace imaging
