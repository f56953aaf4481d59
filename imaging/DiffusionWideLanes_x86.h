// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <immintrin.h>

// What both kinds of error diffusion do with sixteen pixels at a time, as DiffusionLanes_x86.h with
// eight. Only functions with this mark may use the wide registers.
#define WITH_AVX2 __attribute__((target("avx2")))

namespace imaging::wide {

WITH_AVX2 inline __m256i load(const void *from)
{
    return _mm256_loadu_si256(static_cast<const __m256i *>(from));
}

WITH_AVX2 inline void store(void *to, __m256i lanes)
{
    _mm256_storeu_si256(static_cast<__m256i *>(to), lanes);
}

WITH_AVX2 inline __m256i all(int value)
{
    return _mm256_set1_epi16(short(value));
}

/// 16 bytes as 16-bit lanes.
WITH_AVX2 inline __m256i widened(const std::uint8_t *bytes)
{
    return _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes)));
}

/// What 16 extreme pixels leave below; `noise` is that of the first.
WITH_AVX2 inline __m256i starts(const std::uint8_t *noise)
{
    return _mm256_add_epi16(_mm256_slli_epi16(widened(noise), 3), all(kStart - 128 * 8));
}

WITH_AVX2 inline __m256i usualErrors(__m256i tones)
{
    const __m256i dark = _mm256_slli_epi16(_mm256_subs_epu16(all(112), tones), 3);
    const __m256i light = _mm256_slli_epi16(_mm256_subs_epu16(tones, all(143)), 3);
    return _mm256_sub_epi16(_mm256_min_epi16(dark, all(560)), _mm256_min_epi16(light, all(560)));
}

WITH_AVX2 inline __m256i errorsFromAbove(__m256i down, __m256i aside, __m256i tones)
{
    const __m256i start = _mm256_cmpgt_epi16(down, all(kLeastStart - 1));
    if (_mm256_movemask_epi8(start) != 0) {
        const __m256i started =
            _mm256_add_epi16(_mm256_sub_epi16(down, all(kStart)), usualErrors(tones));
        down = _mm256_blendv_epi8(down, started, start);
    }
    const __m256i errors = _mm256_adds_epi16(down, aside);
    return _mm256_max_epi16(_mm256_min_epi16(errors, all(kErrorLimit)), all(-kErrorLimit));
}

/// 16 weights as partsOf() wants them.
WITH_AVX2 inline __m256i weightsOf(const std::uint8_t *weights)
{
    return _mm256_slli_epi16(widened(weights), 8);
}

WITH_AVX2 inline __m256i partsOf(__m256i errors, __m256i weights)
{
    return _mm256_mulhi_epi16(_mm256_adds_epi16(errors, errors), weights);
}

/// The entries of a table of 32 bytes.
WITH_AVX2 inline __m256i lookedUp(const std::array<std::uint8_t, 32> &table, __m256i places)
{
    const __m256i whole = load(table.data());
    const __m256i lower =
        _mm256_shuffle_epi8(_mm256_permute2x128_si256(whole, whole, 0x00), places);
    const __m256i upper =
        _mm256_shuffle_epi8(_mm256_permute2x128_si256(whole, whole, 0x11), places);
    return _mm256_blendv_epi8(lower, upper, _mm256_slli_epi16(places, 3));
}

/// The weights of 32 tones.
WITH_AVX2 inline void setWeights(const DiffusionTable &table, __m256i tones, std::uint8_t *ahead,
                                 std::uint8_t *behind)
{
    const __m256i negative = _mm256_xor_si256(tones, _mm256_set1_epi8(-1));
    const __m256i fromEnd = _mm256_min_epu8(tones, negative);
    const __m256i extreme = _mm256_cmpeq_epi8(fromEnd, _mm256_setzero_si256());
    const __m256i places = _mm256_and_si256(_mm256_srli_epi16(fromEnd, 2),
                                            _mm256_set1_epi8(DiffusionTable::kSize - 1));
    store(ahead, _mm256_andnot_si256(extreme, lookedUp(table.ahead, places)));
    store(behind, _mm256_andnot_si256(extreme, lookedUp(table.behind, places)));
}

/// The bits of 32 pixels, those whose lane is negative: the first in the most significant bit of
/// the first byte.
WITH_AVX2 inline void setInk(std::uint8_t *ink, __m256i left, __m256i right)
{
    const __m256i turn = _mm256_set_epi64x(0x08090A0B0C0D0E0F, 0x0001020304050607,
                                           0x08090A0B0C0D0E0F, 0x0001020304050607);
    // Packing keeps the signs and leaves the quarters in the order 0, 2, 1, 3.
    const __m256i signs = _mm256_permute4x64_epi64(_mm256_packs_epi16(left, right), 0xD8);
    const auto bits = std::uint32_t(_mm256_movemask_epi8(_mm256_shuffle_epi8(signs, turn)));
    std::memcpy(ink, &bits, sizeof bits);
}

} // namespace imaging::wide
