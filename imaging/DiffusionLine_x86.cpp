// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionLine.h"

#if defined(__x86_64__)

#include "imaging/Bits.h"
#include "imaging/BlueNoise.h"

#include <emmintrin.h>

namespace imaging {
namespace {

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

inline __m128i extremes(__m128i tones)
{
    return _mm_or_si128(_mm_cmpeq_epi8(tones, _mm_setzero_si128()),
                        _mm_cmpeq_epi8(tones, _mm_set1_epi8(-1)));
}

/// 8 bytes as 16-bit lanes.
inline __m128i widened(const std::uint8_t *bytes)
{
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(bytes)),
                             _mm_setzero_si128());
}

inline __m128i starts(const DiffusionLine &line, std::size_t x)
{
    const __m128i noise = widened(line.noise + x % kBlueNoiseSide);
    return _mm_add_epi16(_mm_slli_epi16(_mm_sub_epi16(noise, all(128)), 3), all(kStart));
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

struct Parts
{
    __m128i ahead;
    __m128i behind;
};

/// The weights of 8 pixels, each part in lanes of its own.
inline Parts partsOf(const DiffusionWeights *weights)
{
    const __m128i low = load(weights);
    const __m128i high = load(weights + 4);
    const auto lower = [](__m128i pairs) { return _mm_srai_epi32(_mm_slli_epi32(pairs, 16), 16); };
    return {_mm_packs_epi32(lower(low), lower(high)),
            _mm_packs_epi32(_mm_srai_epi32(low, 16), _mm_srai_epi32(high, 16))};
}

/// (error * part) >> 16, where a part of half or more reads as a negative lane.
inline __m128i partOf(__m128i error, __m128i part)
{
    return _mm_add_epi16(_mm_mulhi_epi16(error, part),
                         _mm_and_si128(error, _mm_srai_epi16(part, 15)));
}

void distribute8(const DiffusionLine &line, std::size_t x, __m128i sum, std::ptrdiff_t back)
{
    const __m128i tones = widened(line.tones + x);
    const __m128i extreme =
        _mm_or_si128(_mm_cmpeq_epi16(tones, _mm_setzero_si128()), _mm_cmpeq_epi16(tones, all(255)));
    const __m128i half =
        _mm_sub_epi16(_mm_and_si128(_mm_srai_epi16(sum, 15), all(kFull)), all(kHalf));
    const __m128i error = _mm_andnot_si128(extreme, _mm_add_epi16(sum, half));
    const Parts parts = partsOf(line.weights + x);
    const __m128i behind = partOf(error, parts.behind);
    const __m128i down = _mm_sub_epi16(_mm_sub_epi16(error, partOf(error, parts.ahead)), behind);
    store(line.aside + std::ptrdiff_t(x) + back, behind);
    store(line.down + x, chosen(extreme, starts(line, x), down));
}

void distributeGroup(const DiffusionLine &line, std::size_t x, std::ptrdiff_t back)
{
    const __m128i left = load(line.sums + x);
    const __m128i right = load(line.sums + x + 8);
    // Packing keeps the signs.
    const unsigned bits = unsigned(_mm_movemask_epi8(_mm_packs_epi16(left, right)));
    line.ink[x / 8] = kReversed[bits & 0xFF];
    line.ink[x / 8 + 1] = kReversed[bits >> 8];
    distribute8(line, x, left, back);
    distribute8(line, x + 8, right, back);
}

} // namespace

bool allExtremeSse2(const std::uint8_t *tones)
{
    return _mm_movemask_epi8(extremes(load(tones))) == 0xFFFF;
}

void gatherSse2(const DiffusionLine &line)
{
    for (std::size_t x = 0; x < line.width; x += 8) {
        const __m128i tones = widened(line.tones + x);
        const __m128i error = errorsFromAbove(load(line.down + x), load(line.aside + x), tones);
        const __m128i grey = _mm_sub_epi16(_mm_slli_epi16(tones, 4), all(kHalf));
        const __m128i sum = _mm_add_epi16(grey, error);
        const __m128i black = _mm_cmpeq_epi16(tones, _mm_setzero_si128());
        const __m128i white = _mm_cmpeq_epi16(tones, all(255));
        store(line.sums + x, chosen(white, all(kCertain), chosen(black, all(-kCertain), sum)));
    }
}

void distributeSse2(const DiffusionLine &line)
{
    const RowOrder &order = line.order;
    std::int16_t *seam = line.aside + order.seam;
    // The groups do not write where nothing goes: the row's ends and, on the way inward, the seam.
    for (std::int16_t *place : {line.aside, seam, line.aside + line.width}) {
        place[-1] = 0;
        place[0] = 0;
    }
    for (std::size_t x = 0; x < order.seam; x += kGroup) {
        distributeGroup(line, x, -order.step(x));
    }
    // On the way outward both sides leave something to the same two places.
    const bool outward = !order.inward && order.seam > 0;
    const int before = outward ? seam[-1] : 0;
    const int at = outward ? seam[0] : 0;
    for (std::size_t x = order.seam; x < line.width; x += kGroup) {
        distributeGroup(line, x, -order.step(x));
    }
    seam[-1] = std::int16_t(seam[-1] + before);
    seam[0] = std::int16_t(seam[0] + at);
}

} // namespace imaging

#endif
