// SPDX-License-Identifier: Apache-2.0
#include "imaging/Separation.h"

#include "imaging/ColorRows.h"
#include "imaging/Grey.h"
#include "imaging/PageSettings.h"

#include <algorithm>

namespace imaging {
namespace {

/// 512ths of an amount, rounded down: as 16-bit lanes do it.
unsigned part(unsigned amount, std::uint16_t of512)
{
    return (amount * 128 * of512) >> 16;
}

std::size_t separate(const FixedPointMap &tones, const RedBorder &border, const std::uint8_t *rgb,
                     std::size_t width, std::uint8_t *paper, std::uint8_t *red, ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return separateAvx2(tones, border, rgb, width, paper, red);
    case ProcessorPath::Sse2:
        return separateSse2(tones, border, rgb, width, paper, red);
#endif
    default:
        return 0;
    }
}

} // namespace

RedBorder redBorder(int redLevel)
{
    const int level = std::clamp(redLevel, kLowestLevel, kHighestLevel);
    if (level == kLowestLevel) {
        return {0, 0, 255};
    }
    // Ink is red where its red share is above 1/2 - level/40 below level 0, 1/2 - level/50 above:
    // from all of it at -20 to a tenth at +20.
    if (level < 0) {
        return {std::uint16_t(-512 * level / (20 + level)), 0, 0};
    }
    return {0, std::uint16_t(512 * level / (25 - level)), 0};
}

Shares sharesOf(unsigned red, unsigned green, unsigned blue, const RedBorder &border)
{
    const unsigned excess = red - std::min(red, std::max(green, blue));
    // Beside much black a little red is a tint of the grey.
    const unsigned tint = (255 - red) / 8;
    const unsigned pureRed = excess - std::min(excess, tint);
    const unsigned paper = greyOf(red, green, blue) - unsigned(greyOf(pureRed, 0, 0));
    const unsigned black = 255 - paper - pureRed;
    const unsigned toBlack =
        std::min(pureRed, part(black, border.toBlack) + unsigned(border.allToBlack));
    const unsigned toRed = std::min(black, part(pureRed, border.toRed));
    return {std::uint8_t(paper), std::uint8_t(pureRed - toBlack + toRed)};
}

Separation::Separation(const ColorControls &tones, int redLevel)
    : mTones(tones)
    , mBorder(redBorder(redLevel))
{ }

void Separation::apply(const std::uint8_t *rgb, std::size_t width, std::uint8_t *paper,
                       std::uint8_t *red, ProcessorPath path) const
{
    std::size_t x = 0;
    if (mTones.fixedPoint()) {
        x = separate(*mTones.fixedPoint(), mBorder, rgb, width, paper, red, path);
    }
    const ToneTable &table = mTones.table();
    for (; x < width; ++x) {
        const std::uint8_t *pixel = rgb + x * 3;
        const Shares shares = sharesOf(table[pixel[0]], table[pixel[1]], table[pixel[2]], mBorder);
        paper[x] = shares.paper;
        red[x] = shares.red;
    }
}

} // namespace imaging
