// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <cstddef>
#include <cstdint>
#include <emmintrin.h>

// What both kinds of error diffusion do with eight pixels at a time.

namespace imaging {

inline __m128i load(const void *from)
{
    return _mm_loadu_si128(static_cast<const __m128i *>(from));
}

inline void store(void *to, __m128i lanes)
{
    _mm_storeu_si128(static_cast<__m128i *>(to), lanes);
}

inline __m128i all(int value)
{
    return _mm_set1_epi16(short(value));
}

/// `yes` where the mask is set, `no` elsewhere.
inline __m128i chosen(__m128i mask, __m128i yes, __m128i no)
{
    return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
}

/// 8 bytes as 16-bit lanes.
inline __m128i widened(const std::uint8_t *bytes)
{
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(bytes)),
                             _mm_setzero_si128());
}

/// What 8 extreme pixels leave below; `noise` is that of the first.
inline __m128i starts(const std::uint8_t *noise)
{
    return _mm_add_epi16(_mm_slli_epi16(_mm_sub_epi16(widened(noise), all(128)), 3), all(kStart));
}

inline __m128i usualErrors(__m128i tones)
{
    const auto limited = [](__m128i lanes) {
        return _mm_min_epi16(_mm_slli_epi16(lanes, 3), all(560));
    };
    return _mm_sub_epi16(limited(_mm_subs_epu16(all(112), tones)),
                         limited(_mm_subs_epu16(tones, all(143))));
}

inline __m128i errorsFromAbove(__m128i down, __m128i aside, __m128i tones)
{
    const __m128i limit = all(kErrorLimit);
    const __m128i starts = _mm_cmpgt_epi16(down, all(kLeastStart - 1));
    const __m128i started = _mm_add_epi16(_mm_sub_epi16(down, all(kStart)), usualErrors(tones));
    const __m128i errors = _mm_adds_epi16(chosen(starts, started, down), aside);
    return _mm_max_epi16(_mm_min_epi16(errors, limit), _mm_sub_epi16(_mm_setzero_si128(), limit));
}

/// 8 weights as partsOf() wants them.
inline __m128i weightsOf(const std::uint8_t *weights)
{
    return _mm_unpacklo_epi8(_mm_setzero_si128(),
                             _mm_loadl_epi64(reinterpret_cast<const __m128i *>(weights)));
}

/// What the weights take of the errors.
inline __m128i partsOf(__m128i errors, __m128i weights)
{
    return _mm_mulhi_epi16(_mm_adds_epi16(errors, errors), weights);
}

/// Eight rows of eight lanes.
using Square = __m128i[8];

/// Turns rows into columns.
inline void transpose(Square &rows)
{
    Square pairs;
    Square fours;
    for (std::size_t i = 0; i < 4; ++i) {
        pairs[i * 2] = _mm_unpacklo_epi16(rows[i], rows[i + 4]);
        pairs[i * 2 + 1] = _mm_unpackhi_epi16(rows[i], rows[i + 4]);
    }
    for (std::size_t i = 0; i < 4; ++i) {
        fours[i * 2] = _mm_unpacklo_epi16(pairs[i], pairs[i + 4]);
        fours[i * 2 + 1] = _mm_unpackhi_epi16(pairs[i], pairs[i + 4]);
    }
    for (std::size_t i = 0; i < 4; ++i) {
        rows[i * 2] = _mm_unpacklo_epi16(fours[i], fours[i + 4]);
        rows[i * 2 + 1] = _mm_unpackhi_epi16(fours[i], fours[i + 4]);
    }
}

} // namespace imaging
