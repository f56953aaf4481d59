// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorDiffusionLine.h"

#if defined(__x86_64__)

#include "imaging/DiffusionWideLanes_x86.h"

namespace imaging {
namespace {

using namespace wide;

WITH_AVX2 inline __m256i startsOf(const ColorPlaneLine &plane, std::size_t x)
{
    return starts(plane.noise + (x + plane.noiseOffset) % kBlueNoiseSide);
}

WITH_AVX2 inline __m256i sumsOf(const ColorPlaneLine &plane, std::size_t x, __m256i shares)
{
    const __m256i errors = errorsFromAbove(load(plane.down + x), load(plane.aside + x), shares);
    return _mm256_add_epi16(_mm256_slli_epi16(shares, 4), errors);
}

/// The bar of 16 pixels of which `shares` is 0.
WITH_AVX2 inline __m256i barIfZero(__m256i shares, int bar)
{
    return _mm256_and_si256(_mm256_cmpeq_epi16(shares, _mm256_setzero_si256()), all(bar));
}

WITH_AVX2 inline void gather16(const ColorDiffusionLine &line, std::size_t x)
{
    const __m256i paper = widened(line.paper.shares + x);
    const __m256i red = widened(line.red.shares + x);
    const __m256i black = _mm256_sub_epi16(_mm256_sub_epi16(all(255), paper), red);
    const __m256i most = _mm256_max_epi16(_mm256_max_epi16(paper, red), black);
    const __m256i white = _mm256_cmpeq_epi16(paper, all(255));
    store(line.paper.sums + x,
          _mm256_blendv_epi8(sumsOf(line.paper, x, paper), all(kCertain), white));
    store(line.red.sums + x, sumsOf(line.red, x, red));
    const __m256i pure = _mm256_and_si256(_mm256_cmpeq_epi16(most, all(255)), all(kPure));
    const __m256i inks = _mm256_or_si256(barIfZero(red, kNoRed), barIfZero(black, kNoBlack));
    store(line.bars + x, _mm256_or_si256(_mm256_or_si256(barIfZero(paper, kNoPaper), inks), pure));
}

/// The largest share of each of 32 pixels.
WITH_AVX2 inline __m256i largestShares(__m256i paper, __m256i red)
{
    const __m256i black = _mm256_sub_epi8(_mm256_sub_epi8(_mm256_set1_epi8(-1), paper), red);
    return _mm256_max_epu8(_mm256_max_epu8(paper, red), black);
}

WITH_AVX2 inline bool allWhite(__m256i paper)
{
    return _mm256_movemask_epi8(_mm256_cmpeq_epi8(paper, _mm256_set1_epi8(-1))) == -1;
}

WITH_AVX2 inline void gatherWhite(const ColorDiffusionLine &line, std::size_t x)
{
    for (const std::size_t at : {x, x + 16}) {
        store(line.paper.sums + at, all(kCertain));
        store(line.red.sums + at, _mm256_setzero_si256());
        store(line.bars + at, all(kNoRed | kNoBlack | kPure));
    }
    store(line.ahead + x, _mm256_setzero_si256());
    store(line.behind + x, _mm256_setzero_si256());
}

/// Which colours 16 pixels take. Sums beyond the lanes are cut, which no comparison notices.
struct Choice
{
    __m256i takesInk;
    __m256i takesRed;
};

WITH_AVX2 inline Choice choiceOf(__m256i paper, __m256i red)
{
    const __m256i black = _mm256_subs_epi16(_mm256_subs_epi16(all(kFull), paper), red);
    const __m256i takesInk =
        _mm256_or_si256(_mm256_cmpgt_epi16(black, paper), _mm256_cmpgt_epi16(red, paper));
    return {takesInk, _mm256_and_si256(_mm256_cmpgt_epi16(red, black), takesInk)};
}

struct Weights
{
    __m256i ahead;
    __m256i behind;
};

WITH_AVX2 inline void leave16(const ColorPlaneLine &plane, std::size_t x, std::ptrdiff_t step,
                              __m256i errors, const Weights &weights, __m256i pure)
{
    const __m256i behind = partsOf(errors, weights.behind);
    const __m256i ahead = partsOf(errors, weights.ahead);
    const __m256i down = _mm256_sub_epi16(_mm256_sub_epi16(errors, ahead), behind);
    store(plane.aside + std::ptrdiff_t(x) - step, behind);
    store(plane.down + x, _mm256_blendv_epi8(down, startsOf(plane, x), pure));
}

WITH_AVX2 inline Choice distribute16(const ColorDiffusionLine &line, std::size_t x,
                                     std::ptrdiff_t step)
{
    const __m256i paper = load(line.paper.sums + x);
    const __m256i red = load(line.red.sums + x);
    const Choice choice = choiceOf(paper, red);
    const Weights weights{weightsOf(line.ahead + x), weightsOf(line.behind + x)};
    const __m256i isPure = _mm256_and_si256(load(line.bars + x), all(kPure));
    const __m256i pure = _mm256_cmpeq_epi16(isPure, all(kPure));
    const __m256i onPaper = _mm256_andnot_si256(choice.takesInk, all(kFull));
    const __m256i onRed = _mm256_and_si256(choice.takesRed, all(kFull));
    leave16(line.paper, x, step, _mm256_sub_epi16(paper, onPaper), weights, pure);
    leave16(line.red, x, step, _mm256_sub_epi16(red, onRed), weights, pure);
    return choice;
}

WITH_AVX2 inline void distributeWhite(const ColorDiffusionLine &line, std::size_t x,
                                      std::ptrdiff_t step)
{
    const __m256i zero = _mm256_setzero_si256();
    for (const ColorPlaneLine *plane : {&line.paper, &line.red}) {
        for (const std::size_t at : {x, x + 16}) {
            store(plane->aside + std::ptrdiff_t(at) - step, zero);
            store(plane->down + at, startsOf(*plane, at));
        }
    }
    setInk(line.blackInk + x / 8, zero, zero);
    setInk(line.redInk + x / 8, zero, zero);
}

} // namespace

WITH_AVX2 void gatherColorsAvx2(const ColorDiffusionLine &row)
{
    const ColorDiffusionLine line = row;
    for (std::size_t x = 0; x < line.width; x += kGroup) {
        const __m256i paper = load(line.paper.shares + x);
        if (allWhite(paper)) {
            gatherWhite(line, x);
            continue;
        }
        gather16(line, x);
        gather16(line, x + 16);
        setWeights(*line.table, largestShares(paper, load(line.red.shares + x)), line.ahead + x,
                   line.behind + x);
    }
}

WITH_AVX2 void distributeColorsAvx2(const ColorDiffusionLine &row)
{
    const ColorDiffusionLine line = row;
    const std::ptrdiff_t step = line.parts.step();
    clearSides(line.paper.aside, line.width);
    clearSides(line.red.aside, line.width);
    for (std::size_t x = 0; x < line.width; x += kGroup) {
        if (allWhite(load(line.paper.shares + x))) {
            distributeWhite(line, x, step);
            continue;
        }
        const Choice left = distribute16(line, x, step);
        const Choice right = distribute16(line, x + 16, step);
        setInk(line.redInk + x / 8, left.takesRed, right.takesRed);
        setInk(line.blackInk + x / 8, _mm256_andnot_si256(left.takesRed, left.takesInk),
               _mm256_andnot_si256(right.takesRed, right.takesInk));
    }
}

} // namespace imaging

#endif
