// SPDX-License-Identifier: Apache-2.0
#include "imaging/Screen.h"

#include "imaging/BlueNoise.h"
#include "imaging/ScreenRows.h"

#include <algorithm>

namespace imaging {
namespace {

static_assert(kScreenWidth == kBlueNoiseSide);

constexpr std::uint8_t kMiddle = 128;

/// For each threshold, how many values of a pixel are inked by it: those from 0 on, because the
/// tones never fall.
std::array<int, 256> inkedValues(const ToneTable &tones)
{
    std::array<int, 256> counts{};
    for (std::size_t threshold = 0; threshold < counts.size(); ++threshold) {
        counts[threshold] =
            int(std::lower_bound(tones.begin(), tones.end(), threshold) - tones.begin());
    }
    return counts;
}

std::uint8_t bitOf(std::size_t place)
{
    return std::uint8_t(0x80U >> (place % 8));
}

std::size_t nothing(const ScreenRow &, const std::uint8_t *, std::size_t, std::uint8_t *)
{
    return 0;
}

using RowScreen = std::size_t (*)(const ScreenRow &row, const std::uint8_t *grey, std::size_t width,
                                  std::uint8_t *ink);

RowScreen rowScreen(ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return screenAvx2;
    case ProcessorPath::Sse2:
        return screenSse2;
#endif
    default:
        return nothing;
    }
}

} // namespace

Screen::Screen(HalftoneMethod method, const ToneTable &tones)
    : mRows(method == HalftoneMethod::Dither ? kBlueNoiseSide : 1)
{
    const std::array<int, 256> inked = inkedValues(tones);
    for (std::size_t y = 0; y < mRows.size(); ++y) {
        mRows[y].never = {};
        for (std::size_t x = 0; x < kScreenWidth; ++x) {
            const bool dither = method == HalftoneMethod::Dither;
            const int count = inked[dither ? kBlueNoise[y][x] : kMiddle];
            mRows[y].highest[x] = std::uint8_t(std::max(count - 1, 0));
            if (count == 0) {
                mRows[y].never[x / 8] |= bitOf(x);
            }
        }
    }
}

void Screen::apply(std::size_t y, const std::uint8_t *grey, std::size_t width, std::uint8_t *ink,
                   ProcessorPath path) const
{
    const ScreenRow &row = mRows[y % mRows.size()];
    std::size_t x = rowScreen(path)(row, grey, width, ink);
    std::fill(ink + x / 8, ink + (width + 7) / 8, std::uint8_t(0));
    for (; x < width; ++x) {
        const std::size_t place = x % kScreenWidth;
        const bool never = (row.never[place / 8] & bitOf(place)) != 0;
        if (grey[x] <= row.highest[place] && !never) {
            ink[x / 8] |= bitOf(x);
        }
    }
}

} // namespace imaging
