// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorControlsRows.h"

#if defined(__x86_64__)

#include <immintrin.h>

// Kept apart from the rest because only these functions may use the wide registers.
#define WITH_AVX2 __attribute__((target("avx2")))

namespace imaging {
namespace {

constexpr int kAlphaBits = int(0xFF000000U);

struct MapSse2
{
    __m128i slope;
    __m128i add;
    __m128i subtract;
    __m128i shift;
};

inline __m128i toned(__m128i lanes, const MapSse2 &map)
{
    const __m128i product = _mm_mulhi_epu16(lanes, map.slope);
    const __m128i sum = _mm_subs_epu16(_mm_adds_epu16(product, map.add), map.subtract);
    return _mm_srl_epi16(sum, map.shift);
}

inline __m128i filtered(__m128i pixels, const MapSse2 &map)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i alpha = _mm_set1_epi32(kAlphaBits);
    // Interleaved behind a zero, each value stands in the upper half of its lane: value * 256.
    const __m128i tones = _mm_packus_epi16(toned(_mm_unpacklo_epi8(zero, pixels), map),
                                           toned(_mm_unpackhi_epi8(zero, pixels), map));
    const __m128i invisible = _mm_cmpeq_epi32(_mm_and_si128(pixels, alpha), zero);
    const __m128i keep = _mm_or_si128(alpha, invisible);
    return _mm_or_si128(_mm_andnot_si128(keep, tones), _mm_and_si128(keep, pixels));
}

struct MapAvx2
{
    __m256i slope;
    __m256i add;
    __m256i subtract;
    __m128i shift;
};

WITH_AVX2 inline __m256i toned(__m256i lanes, const MapAvx2 &map)
{
    const __m256i product = _mm256_mulhi_epu16(lanes, map.slope);
    const __m256i sum = _mm256_subs_epu16(_mm256_adds_epu16(product, map.add), map.subtract);
    return _mm256_srl_epi16(sum, map.shift);
}

WITH_AVX2 inline __m256i filtered(__m256i pixels, const MapAvx2 &map)
{
    const __m256i zero = _mm256_setzero_si256();
    const __m256i alpha = _mm256_set1_epi32(kAlphaBits);
    const __m256i tones = _mm256_packus_epi16(toned(_mm256_unpacklo_epi8(zero, pixels), map),
                                              toned(_mm256_unpackhi_epi8(zero, pixels), map));
    const __m256i invisible = _mm256_cmpeq_epi32(_mm256_and_si256(pixels, alpha), zero);
    return _mm256_blendv_epi8(tones, pixels, _mm256_or_si256(alpha, invisible));
}

} // namespace

std::size_t filterRowSse2(const FixedPointMap &map, const std::uint8_t *from, std::uint8_t *to,
                          std::size_t pixels)
{
    const MapSse2 lanes{_mm_set1_epi16(short(map.slope)), _mm_set1_epi16(short(map.add)),
                        _mm_set1_epi16(short(map.subtract)), _mm_cvtsi32_si128(map.shift)};
    const std::size_t bytes = pixels / 4 * 16;
    for (std::size_t i = 0; i < bytes; i += 16) {
        const __m128i source = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from + i));
        auto *target = reinterpret_cast<__m128i *>(to + i);
        _mm_storeu_si128(target, filtered(source, lanes));
    }
    return bytes / 4;
}

WITH_AVX2 std::size_t filterRowAvx2(const FixedPointMap &map, const std::uint8_t *from,
                                    std::uint8_t *to, std::size_t pixels)
{
    const MapAvx2 lanes{_mm256_set1_epi16(short(map.slope)), _mm256_set1_epi16(short(map.add)),
                        _mm256_set1_epi16(short(map.subtract)), _mm_cvtsi32_si128(map.shift)};
    const std::size_t bytes = pixels / 8 * 32;
    for (std::size_t i = 0; i < bytes; i += 32) {
        const __m256i source = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from + i));
        auto *target = reinterpret_cast<__m256i *>(to + i);
        _mm256_storeu_si256(target, filtered(source, lanes));
    }
    return bytes / 4;
}

} // namespace imaging

#endif
