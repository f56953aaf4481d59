// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionLine.h"

#if defined(__x86_64__)

#include "imaging/DiffusionWideLanes_x86.h"

namespace imaging {
namespace {

using namespace wide;

WITH_AVX2 inline __m256i extremes(__m256i tones)
{
    const __m256i negative = _mm256_xor_si256(tones, _mm256_set1_epi8(-1));
    return _mm256_cmpeq_epi8(_mm256_min_epu8(tones, negative), _mm256_setzero_si256());
}

/// The first or last 16 of 32 masks, as 16-bit lanes.
WITH_AVX2 inline __m256i widenedMask(__m256i mask, bool last)
{
    return _mm256_cvtepi8_epi16(last ? _mm256_extracti128_si256(mask, 1)
                                     : _mm256_castsi256_si128(mask));
}

/// The sums of pixels without grey: those of black ones negative.
WITH_AVX2 inline __m256i certainSums(__m256i tones)
{
    const __m256i black = _mm256_cmpeq_epi16(tones, _mm256_setzero_si256());
    return _mm256_blendv_epi8(all(kCertain), all(-kCertain), black);
}

WITH_AVX2 inline void gather16(const DiffusionLine &line, std::size_t x, __m256i extreme)
{
    const __m256i tones = widened(line.tones + x);
    const __m256i error = errorsFromAbove(load(line.down + x), load(line.aside + x), tones);
    const __m256i sum =
        _mm256_add_epi16(_mm256_sub_epi16(_mm256_slli_epi16(tones, 4), all(kHalf)), error);
    store(line.sums + x, _mm256_blendv_epi8(sum, certainSums(tones), extreme));
}

WITH_AVX2 inline void distribute16(const DiffusionLine &line, std::size_t x, std::ptrdiff_t step,
                                   __m256i sum, __m256i extreme)
{
    const __m256i inked = _mm256_and_si256(_mm256_srai_epi16(sum, 15), all(kFull));
    const __m256i error = _mm256_add_epi16(_mm256_sub_epi16(sum, all(kHalf)), inked);
    const __m256i ahead = partsOf(error, weightsOf(line.ahead + x));
    const __m256i behind = partsOf(error, weightsOf(line.behind + x));
    const __m256i down = _mm256_sub_epi16(_mm256_sub_epi16(error, ahead), behind);
    const __m256i start = starts(line.noise + x % kBlueNoiseSide);
    store(line.aside + std::ptrdiff_t(x) - step, behind);
    store(line.down + x, _mm256_blendv_epi8(down, start, extreme));
}

} // namespace

WITH_AVX2 void gatherAvx2(const DiffusionLine &row)
{
    const DiffusionLine line = row;
    for (std::size_t x = 0; x < line.width; x += kGroup) {
        const __m256i tones = load(line.tones + x);
        const __m256i extreme = extremes(tones);
        if (_mm256_movemask_epi8(extreme) == -1) {
            store(line.sums + x, certainSums(widened(line.tones + x)));
            store(line.sums + x + 16, certainSums(widened(line.tones + x + 16)));
            store(line.ahead + x, _mm256_setzero_si256());
            store(line.behind + x, _mm256_setzero_si256());
            continue;
        }
        gather16(line, x, widenedMask(extreme, false));
        gather16(line, x + 16, widenedMask(extreme, true));
        setWeights(*line.table, tones, line.ahead + x, line.behind + x);
    }
}

WITH_AVX2 void distributeAvx2(const DiffusionLine &row)
{
    const DiffusionLine line = row;
    const std::ptrdiff_t step = line.parts.step();
    clearSides(line.aside, line.width);
    for (std::size_t x = 0; x < line.width; x += kGroup) {
        const __m256i left = load(line.sums + x);
        const __m256i right = load(line.sums + x + 16);
        setInk(line.ink + x / 8, left, right);
        const __m256i extreme = extremes(load(line.tones + x));
        if (_mm256_movemask_epi8(extreme) == -1) {
            for (const std::size_t at : {x, x + 16}) {
                store(line.aside + std::ptrdiff_t(at) - step, _mm256_setzero_si256());
                store(line.down + at, starts(line.noise + at % kBlueNoiseSide));
            }
            continue;
        }
        distribute16(line, x, step, left, widenedMask(extreme, false));
        distribute16(line, x + 16, step, right, widenedMask(extreme, true));
    }
}

} // namespace imaging

#endif
