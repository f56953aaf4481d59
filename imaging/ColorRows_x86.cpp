// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorRows.h"

#if defined(__x86_64__)

#include <immintrin.h>

// Kept apart from the rest because only these functions may use the wide registers.
#define WITH_AVX2 __attribute__((target("avx2")))

namespace imaging {
namespace {

struct ToneSse2
{
    __m128i slope;
    __m128i add;
    __m128i subtract;
    __m128i shift;
};

/// `lanes` are values * 256; the result may be above 255 and is cut by the packing.
inline __m128i toned(__m128i lanes, const ToneSse2 &tones)
{
    const __m128i product = _mm_mulhi_epu16(lanes, tones.slope);
    const __m128i sum = _mm_subs_epu16(_mm_adds_epu16(product, tones.add), tones.subtract);
    return _mm_srl_epi16(sum, tones.shift);
}

struct ToneAvx2
{
    __m256i slope;
    __m256i add;
    __m256i subtract;
    __m128i shift;
};

WITH_AVX2 inline ToneAvx2 lanesOf(const FixedPointMap &tones)
{
    return {_mm256_set1_epi16(short(tones.slope)), _mm256_set1_epi16(short(tones.add)),
            _mm256_set1_epi16(short(tones.subtract)), _mm_cvtsi32_si128(tones.shift)};
}

WITH_AVX2 inline __m256i toned(__m256i lanes, const ToneAvx2 &tones)
{
    const __m256i product = _mm256_mulhi_epu16(lanes, tones.slope);
    const __m256i sum = _mm256_subs_epu16(_mm256_adds_epu16(product, tones.add), tones.subtract);
    return _mm256_srl_epi16(sum, tones.shift);
}

/// 16 pixels as 16-bit lanes.
struct Rgb
{
    __m256i red;
    __m256i green;
    __m256i blue;
};

/// The bytes of one colour out of 48 bytes of pixels; each pick says where they stand in its 16.
WITH_AVX2 inline __m128i picked(const __m128i (&bytes)[3], __m128i first, __m128i second,
                                __m128i third)
{
    return _mm_or_si128(
        _mm_or_si128(_mm_shuffle_epi8(bytes[0], first), _mm_shuffle_epi8(bytes[1], second)),
        _mm_shuffle_epi8(bytes[2], third));
}

WITH_AVX2 inline __m256i tonedBytes(__m128i bytes, const ToneAvx2 &tones)
{
    const __m256i lanes = _mm256_slli_epi16(_mm256_cvtepu8_epi16(bytes), 8);
    return _mm256_min_epi16(toned(lanes, tones), _mm256_set1_epi16(255));
}

WITH_AVX2 inline Rgb tonedPixels(const std::uint8_t *rgb, const ToneAvx2 &tones)
{
    __m128i bytes[3];
    for (std::size_t i = 0; i < 3; ++i) {
        bytes[i] = _mm_loadu_si128(reinterpret_cast<const __m128i *>(rgb + i * 16));
    }
    const __m128i red =
        picked(bytes, _mm_setr_epi8(0, 3, 6, 9, 12, 15, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, -1, 2, 5, 8, 11, 14, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 4, 7, 10, 13));
    const __m128i green =
        picked(bytes, _mm_setr_epi8(1, 4, 7, 10, 13, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, 0, 3, 6, 9, 12, 15, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 2, 5, 8, 11, 14));
    const __m128i blue =
        picked(bytes, _mm_setr_epi8(2, 5, 8, 11, 14, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, 1, 4, 7, 10, 13, -1, -1, -1, -1, -1, -1),
               _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 0, 3, 6, 9, 12, 15));
    return {tonedBytes(red, tones), tonedBytes(green, tones), tonedBytes(blue, tones)};
}

WITH_AVX2 inline __m256i times(__m256i lanes, int factor)
{
    return _mm256_mullo_epi16(lanes, _mm256_set1_epi16(short(factor)));
}

/// The sum of the weighted colours out of 256; it stays below 65536.
WITH_AVX2 inline __m256i rounded256ths(__m256i sum)
{
    return _mm256_srli_epi16(_mm256_add_epi16(sum, _mm256_set1_epi16(128)), 8);
}

WITH_AVX2 inline __m256i greyOf(const Rgb &pixels)
{
    return rounded256ths(_mm256_add_epi16(
        _mm256_add_epi16(times(pixels.red, 77), times(pixels.green, 150)), times(pixels.blue, 29)));
}

WITH_AVX2 inline void store(__m256i lanes, std::uint8_t *to)
{
    const __m128i bytes =
        _mm_packus_epi16(_mm256_castsi256_si128(lanes), _mm256_extracti128_si256(lanes, 1));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), bytes);
}

struct BorderAvx2
{
    __m256i toBlack;
    __m256i toRed;
    __m256i allToBlack;
};

/// 512ths of an amount, rounded down.
WITH_AVX2 inline __m256i part(__m256i amount, __m256i of512)
{
    return _mm256_mulhi_epu16(_mm256_slli_epi16(amount, 7), of512);
}

WITH_AVX2 inline void separate(const Rgb &pixels, const BorderAvx2 &border, std::uint8_t *paperTo,
                               std::uint8_t *redTo)
{
    const __m256i others = _mm256_max_epi16(pixels.green, pixels.blue);
    const __m256i excess = _mm256_subs_epu16(pixels.red, others);
    const __m256i lacking = _mm256_sub_epi16(_mm256_set1_epi16(255), pixels.red);
    const __m256i pureRed = _mm256_subs_epu16(excess, _mm256_srli_epi16(lacking, 3));
    const __m256i paper = _mm256_sub_epi16(greyOf(pixels), rounded256ths(times(pureRed, 77)));
    const __m256i black =
        _mm256_sub_epi16(_mm256_set1_epi16(255), _mm256_add_epi16(paper, pureRed));
    const __m256i toBlack =
        _mm256_min_epi16(pureRed, _mm256_add_epi16(part(black, border.toBlack), border.allToBlack));
    const __m256i toRed = _mm256_min_epi16(black, part(pureRed, border.toRed));
    store(paper, paperTo);
    store(_mm256_add_epi16(_mm256_sub_epi16(pureRed, toBlack), toRed), redTo);
}

} // namespace

std::size_t toneGreySse2(const FixedPointMap &tones, const std::uint8_t *from, std::size_t width,
                         std::uint8_t *grey)
{
    const ToneSse2 lanes{_mm_set1_epi16(short(tones.slope)), _mm_set1_epi16(short(tones.add)),
                         _mm_set1_epi16(short(tones.subtract)), _mm_cvtsi32_si128(tones.shift)};
    const __m128i zero = _mm_setzero_si128();
    std::size_t x = 0;
    for (; x + 16 <= width; x += 16) {
        const __m128i values = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from + x));
        const __m128i low = toned(_mm_unpacklo_epi8(zero, values), lanes);
        const __m128i high = toned(_mm_unpackhi_epi8(zero, values), lanes);
        _mm_storeu_si128(reinterpret_cast<__m128i *>(grey + x), _mm_packus_epi16(low, high));
    }
    return x;
}

WITH_AVX2 std::size_t toneGreyAvx2(const FixedPointMap &tones, const std::uint8_t *from,
                                   std::size_t width, std::uint8_t *grey)
{
    const ToneAvx2 lanes = lanesOf(tones);
    const __m256i zero = _mm256_setzero_si256();
    std::size_t x = 0;
    for (; x + 32 <= width; x += 32) {
        const __m256i values = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from + x));
        const __m256i low = toned(_mm256_unpacklo_epi8(zero, values), lanes);
        const __m256i high = toned(_mm256_unpackhi_epi8(zero, values), lanes);
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(grey + x), _mm256_packus_epi16(low, high));
    }
    return x;
}

WITH_AVX2 std::size_t greyOfRgbAvx2(const FixedPointMap &tones, const std::uint8_t *rgb,
                                    std::size_t width, std::uint8_t *grey)
{
    const ToneAvx2 lanes = lanesOf(tones);
    std::size_t x = 0;
    for (; x + 16 <= width; x += 16) {
        store(greyOf(tonedPixels(rgb + x * 3, lanes)), grey + x);
    }
    return x;
}

WITH_AVX2 std::size_t separateAvx2(const FixedPointMap &tones, const RedBorder &border,
                                   const std::uint8_t *rgb, std::size_t width, std::uint8_t *paper,
                                   std::uint8_t *red)
{
    const ToneAvx2 lanes = lanesOf(tones);
    const BorderAvx2 borders{_mm256_set1_epi16(short(border.toBlack)),
                             _mm256_set1_epi16(short(border.toRed)),
                             _mm256_set1_epi16(short(border.allToBlack))};
    std::size_t x = 0;
    for (; x + 16 <= width; x += 16) {
        separate(tonedPixels(rgb + x * 3, lanes), borders, paper + x, red + x);
    }
    return x;
}

} // namespace imaging

#endif
