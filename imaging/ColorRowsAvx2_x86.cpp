// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorRows.h"

#if defined(__x86_64__)

#include <algorithm>
#include <immintrin.h>

// Kept apart from the rest because only these functions may use the wide registers.
#define WITH_AVX2 __attribute__((target("avx2")))

namespace imaging {
namespace {

constexpr std::size_t kPixels = 32;

/// How many pixels of a row are done: all, unless there are fewer than go at once.
constexpr std::size_t wholeOf(std::size_t width)
{
    return width < kPixels ? 0 : width;
}

/// Where the next pixels begin that go at once. The last of a row go together with some that are
/// done already.
constexpr std::size_t next(std::size_t x, std::size_t width)
{
    return x + kPixels == width ? width : std::min(x + kPixels, width - kPixels);
}

WITH_AVX2 inline __m256i load(const std::uint8_t *from)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
}

WITH_AVX2 inline void store(std::uint8_t *to, __m256i bytes)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), bytes);
}

struct Tones
{
    __m256i slope;
    __m256i add;
    __m256i subtract;
    __m128i shift;
};

WITH_AVX2 inline Tones tonesOf(const FixedPointMap &map)
{
    return {_mm256_set1_epi16(short(map.slope)), _mm256_set1_epi16(short(map.add)),
            _mm256_set1_epi16(short(map.subtract)), _mm_cvtsi32_si128(map.shift)};
}

/// `lanes` are values * 256; the result may be above 255 and is cut by the packing.
WITH_AVX2 inline __m256i tonedLanes(__m256i lanes, const Tones &tones)
{
    const __m256i product = _mm256_mulhi_epu16(lanes, tones.slope);
    const __m256i sum = _mm256_subs_epu16(_mm256_adds_epu16(product, tones.add), tones.subtract);
    return _mm256_srl_epi16(sum, tones.shift);
}

WITH_AVX2 inline __m256i toned(__m256i bytes, const Tones &tones)
{
    const __m256i zero = _mm256_setzero_si256();
    return _mm256_packus_epi16(tonedLanes(_mm256_unpacklo_epi8(zero, bytes), tones),
                               tonedLanes(_mm256_unpackhi_epi8(zero, bytes), tones));
}

/// 32 pixels as they are stored: in each half of the registers 16 pixels, one after the other.
struct Threes
{
    __m256i bytes[3];
};

WITH_AVX2 inline Threes threesOf(const std::uint8_t *rgb)
{
    Threes threes;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto *half = reinterpret_cast<const __m128i *>(rgb) + i;
        threes.bytes[i] = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(half)),
                                                  _mm_loadu_si128(half + 3), 1);
    }
    return threes;
}

WITH_AVX2 inline bool allWhite(const Threes &threes)
{
    const __m256i common =
        _mm256_and_si256(_mm256_and_si256(threes.bytes[0], threes.bytes[1]), threes.bytes[2]);
    return _mm256_movemask_epi8(_mm256_cmpeq_epi8(common, _mm256_set1_epi8(-1))) == -1;
}

/// A byte each.
struct Rgb
{
    __m256i red;
    __m256i green;
    __m256i blue;
};

/// Where a colour stands in the first of three registers, another does in the second and the third:
/// taken together they are out of order only.
WITH_AVX2 inline __m256i oneColor(__m256i every3rd, __m256i thirdsAfter, __m256i thirdsBefore,
                                  __m128i order)
{
    const __m256i after = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0));
    const __m256i before = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0));
    const __m256i two = _mm256_blendv_epi8(every3rd, thirdsAfter, after);
    return _mm256_shuffle_epi8(_mm256_blendv_epi8(two, thirdsBefore, before),
                               _mm256_broadcastsi128_si256(order));
}

WITH_AVX2 inline Rgb tonedPixels(const Threes &threes, const Tones &tones)
{
    const __m256i first = toned(threes.bytes[0], tones);
    const __m256i second = toned(threes.bytes[1], tones);
    const __m256i third = toned(threes.bytes[2], tones);
    return {oneColor(first, third, second,
                     _mm_setr_epi8(0, 3, 6, 9, 12, 15, 2, 5, 8, 11, 14, 1, 4, 7, 10, 13)),
            oneColor(second, first, third,
                     _mm_setr_epi8(1, 4, 7, 10, 13, 0, 3, 6, 9, 12, 15, 2, 5, 8, 11, 14)),
            oneColor(third, second, first,
                     _mm_setr_epi8(2, 5, 8, 11, 14, 1, 4, 7, 10, 13, 0, 3, 6, 9, 12, 15))};
}

/// The 256ths of sums below 65536, as bytes.
WITH_AVX2 inline __m256i packed256ths(__m256i low, __m256i high)
{
    return _mm256_packus_epi16(_mm256_srli_epi16(low, 8), _mm256_srli_epi16(high, 8));
}

/// The weighted sum of red, green and blue and one half, of the lower or upper pixels.
WITH_AVX2 inline __m256i weighted(__m256i redAndBlue, __m256i green)
{
    const __m256i weights = _mm256_set1_epi16(77 + 29 * 256);
    const __m256i sum = _mm256_add_epi16(_mm256_maddubs_epi16(redAndBlue, weights),
                                         _mm256_mullo_epi16(green, _mm256_set1_epi16(150)));
    return _mm256_add_epi16(sum, _mm256_set1_epi16(128));
}

WITH_AVX2 inline __m256i greyOf(const Rgb &pixels)
{
    const __m256i zero = _mm256_setzero_si256();
    return packed256ths(weighted(_mm256_unpacklo_epi8(pixels.red, pixels.blue),
                                 _mm256_unpacklo_epi8(pixels.green, zero)),
                        weighted(_mm256_unpackhi_epi8(pixels.red, pixels.blue),
                                 _mm256_unpackhi_epi8(pixels.green, zero)));
}

WITH_AVX2 inline __m256i greyOfRed(__m256i red)
{
    // 77 times red and 64 times 2, which rounds.
    const __m256i two = _mm256_set1_epi8(2);
    const __m256i weights = _mm256_set1_epi16(77 + 64 * 256);
    return packed256ths(_mm256_maddubs_epi16(_mm256_unpacklo_epi8(red, two), weights),
                        _mm256_maddubs_epi16(_mm256_unpackhi_epi8(red, two), weights));
}

/// 512ths of an amount, rounded down and cut to 255.
WITH_AVX2 inline __m256i part(__m256i amount, std::uint16_t of512)
{
    const __m256i zero = _mm256_setzero_si256();
    const __m256i factor = _mm256_set1_epi16(short(of512));
    const __m256i low = _mm256_srli_epi16(_mm256_unpacklo_epi8(zero, amount), 1);
    const __m256i high = _mm256_srli_epi16(_mm256_unpackhi_epi8(zero, amount), 1);
    return _mm256_packus_epi16(_mm256_mulhi_epu16(low, factor), _mm256_mulhi_epu16(high, factor));
}

/// What is left of 255.
WITH_AVX2 inline __m256i rest(__m256i bytes)
{
    return _mm256_xor_si256(bytes, _mm256_set1_epi8(-1));
}

WITH_AVX2 inline __m256i moved(__m256i red, __m256i black, const RedBorder &border)
{
    if (border.allToBlack != 0) {
        return _mm256_setzero_si256();
    }
    if (border.toBlack != 0) {
        return _mm256_subs_epu8(red, part(black, border.toBlack));
    }
    if (border.toRed != 0) {
        return _mm256_add_epi8(red, _mm256_min_epu8(black, part(red, border.toRed)));
    }
    return red;
}

WITH_AVX2 inline __m256i pureRedOf(const Rgb &pixels)
{
    const __m256i tint =
        _mm256_and_si256(_mm256_srli_epi16(rest(pixels.red), 3), _mm256_set1_epi8(31));
    const __m256i others = _mm256_max_epu8(pixels.green, pixels.blue);
    return _mm256_subs_epu8(_mm256_subs_epu8(pixels.red, others), tint);
}

} // namespace

WITH_AVX2 std::size_t toneGreyAvx2(const FixedPointMap &map, const std::uint8_t *from,
                                   std::size_t width, std::uint8_t *grey)
{
    const Tones tones = tonesOf(map);
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        store(grey + x, toned(load(from + x), tones));
    }
    return wholeOf(width);
}

WITH_AVX2 std::size_t greyOfRgbAvx2(const FixedPointMap &map, const std::uint8_t *rgb,
                                    std::size_t width, std::uint8_t *grey)
{
    const Tones tones = tonesOf(map);
    const __m256i white = _mm256_set1_epi8(char(map(255)));
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        const Threes threes = threesOf(rgb + x * 3);
        store(grey + x, allWhite(threes) ? white : greyOf(tonedPixels(threes, tones)));
    }
    return wholeOf(width);
}

WITH_AVX2 std::size_t separateAvx2(const FixedPointMap &map, const RedBorder &border,
                                   const std::uint8_t *rgb, std::size_t width,
                                   std::uint8_t *paperTo, std::uint8_t *redTo)
{
    const Tones tones = tonesOf(map);
    const __m256i white = _mm256_set1_epi8(char(map(255)));
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        const Threes threes = threesOf(rgb + x * 3);
        if (allWhite(threes)) {
            store(paperTo + x, white);
            store(redTo + x, _mm256_setzero_si256());
            continue;
        }
        const Rgb pixels = tonedPixels(threes, tones);
        const __m256i red = pureRedOf(pixels);
        const __m256i paper = _mm256_sub_epi8(greyOf(pixels), greyOfRed(red));
        store(paperTo + x, paper);
        store(redTo + x, moved(red, _mm256_sub_epi8(rest(paper), red), border));
    }
    return wholeOf(width);
}

} // namespace imaging

#endif
