// SPDX-License-Identifier: Apache-2.0
#include "imaging/ScreenRows.h"

#if defined(__x86_64__)

#include "imaging/Bits.h"

#include <cstring>
#include <immintrin.h>

// Kept apart from the rest because only these functions may use the wide registers.
#define WITH_AVX2 __attribute__((target("avx2")))

namespace imaging {
namespace {

/// 16 pixels as 2 bytes of dots, the first pixel's dot in the most significant bit of the first.
inline void inkOf(const ScreenRow &row, std::size_t x, __m128i pixels, std::uint8_t *ink)
{
    const std::size_t place = x % kScreenWidth;
    const auto *highest = reinterpret_cast<const __m128i *>(&row.highest[place]);
    const __m128i dark = _mm_cmpeq_epi8(_mm_min_epu8(pixels, _mm_load_si128(highest)), pixels);
    const unsigned bits = unsigned(_mm_movemask_epi8(dark));
    ink[0] = std::uint8_t(kReversed[bits & 0xFF] & ~row.never[place / 8]);
    ink[1] = std::uint8_t(kReversed[bits >> 8] & ~row.never[place / 8 + 1]);
}

/// 32 pixels as 4 bytes of dots. Each group of 8 is turned around, because the first pixel's dot is
/// wanted in the most significant bit.
WITH_AVX2 inline std::uint32_t inkOf(const ScreenRow &row, std::size_t x, __m256i pixels)
{
    const std::size_t place = x % kScreenWidth;
    const __m256i turn = _mm256_set_epi64x(0x08090A0B0C0D0E0F, 0x0001020304050607,
                                           0x08090A0B0C0D0E0F, 0x0001020304050607);
    const __m256i highest =
        _mm256_load_si256(reinterpret_cast<const __m256i *>(&row.highest[place]));
    const __m256i dark = _mm256_cmpeq_epi8(_mm256_min_epu8(pixels, highest), pixels);
    std::uint32_t never = 0;
    std::memcpy(&never, &row.never[place / 8], sizeof never);
    return std::uint32_t(_mm256_movemask_epi8(_mm256_shuffle_epi8(dark, turn))) & ~never;
}

} // namespace

std::size_t screenSse2(const ScreenRow &row, const std::uint8_t *grey, std::size_t width,
                       std::uint8_t *ink)
{
    std::size_t x = 0;
    for (; x + 16 <= width; x += 16) {
        inkOf(row, x, _mm_loadu_si128(reinterpret_cast<const __m128i *>(grey + x)), ink + x / 8);
    }
    return x;
}

WITH_AVX2 std::size_t screenAvx2(const ScreenRow &row, const std::uint8_t *grey, std::size_t width,
                                 std::uint8_t *ink)
{
    std::size_t x = 0;
    for (; x + 32 <= width; x += 32) {
        const __m256i pixels = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(grey + x));
        const std::uint32_t bits = inkOf(row, x, pixels);
        std::memcpy(ink + x / 8, &bits, sizeof bits);
    }
    // The last pixels of a row from a copy, so that nothing behind it is read.
    if (const std::size_t rest = (width - x) / 8 * 8; rest > 0) {
        alignas(32) std::uint8_t copy[32] = {};
        std::memcpy(copy, grey + x, rest);
        const std::uint32_t bits =
            inkOf(row, x, _mm256_load_si256(reinterpret_cast<__m256i *>(copy)));
        std::memcpy(ink + x / 8, &bits, rest / 8);
        x += rest;
    }
    return x;
}

} // namespace imaging

#endif
