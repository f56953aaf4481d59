// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorDiffusionLine.h"

#if defined(__x86_64__)

#include "imaging/Bits.h"
#include "imaging/DiffusionLanes_x86.h"

namespace imaging {
namespace {

inline __m128i startsOf(const ColorPlaneLine &plane, std::size_t x)
{
    return starts(plane.noise + (x + plane.noiseOffset) % kBlueNoiseSide);
}

/// The lanes whose bar of that bit is set.
template <int kBar> __m128i barred(__m128i bars)
{
    static_assert(kBar == kNoPaper || kBar == kNoRed || kBar == kNoBlack || kBar == kPure);
    constexpr int kShift = kBar == kNoPaper ? 0 : kBar == kNoRed ? 1 : kBar == kNoBlack ? 2 : 3;
    return _mm_srai_epi16(_mm_slli_epi16(bars, kShift), 15);
}

inline __m128i isZero(__m128i lanes)
{
    return _mm_cmpeq_epi16(lanes, _mm_setzero_si128());
}

inline __m128i gatherPlane8(const ColorPlaneLine &plane, std::size_t x, __m128i shares)
{
    const __m128i errors = errorsFromAbove(load(plane.down + x), load(plane.aside + x), shares);
    return _mm_add_epi16(_mm_slli_epi16(shares, 4), errors);
}

void gather8(const ColorDiffusionLine &line, std::size_t x)
{
    const __m128i paper = widened(line.paper.shares + x);
    const __m128i red = widened(line.red.shares + x);
    const __m128i black = _mm_sub_epi16(_mm_sub_epi16(all(255), paper), red);
    const __m128i most = _mm_max_epi16(_mm_max_epi16(paper, red), black);
    const __m128i white = _mm_cmpeq_epi16(paper, all(255));
    store(line.paper.sums + x, chosen(white, all(kCertain), gatherPlane8(line.paper, x, paper)));
    store(line.red.sums + x, gatherPlane8(line.red, x, red));
    const __m128i bars =
        _mm_or_si128(_mm_or_si128(_mm_and_si128(isZero(paper), all(kNoPaper)),
                                  _mm_and_si128(isZero(red), all(kNoRed))),
                     _mm_or_si128(_mm_and_si128(isZero(black), all(kNoBlack)),
                                  _mm_and_si128(_mm_cmpeq_epi16(most, all(255)), all(kPure))));
    store(line.bars + x, bars);
    std::uint16_t tones[kBlock];
    store(tones, most);
    for (std::size_t i = 0; i < kBlock; ++i) {
        const DiffusionWeights weights = line.table->of(std::uint8_t(tones[i]));
        line.ahead[x + i] = weights.ahead;
        line.behind[x + i] = weights.behind;
    }
}

inline bool isWhite(const ColorDiffusionLine &line, std::size_t x)
{
    const __m128i white = _mm_cmpeq_epi8(load(line.paper.shares + x), _mm_set1_epi8(-1));
    return _mm_movemask_epi8(white) == 0xFFFF;
}

void gatherWhite(const ColorDiffusionLine &line, std::size_t x)
{
    for (const std::size_t at : {x, x + kBlock}) {
        store(line.paper.sums + at, all(kCertain));
        store(line.red.sums + at, _mm_setzero_si128());
        store(line.bars + at, all(kNoRed | kNoBlack | kPure));
    }
    store(line.ahead + x, _mm_setzero_si128());
    store(line.behind + x, _mm_setzero_si128());
}

struct Errors
{
    __m128i paper;
    __m128i red;
};

/// Which colours 8 pixels take, and what that leaves. Sums beyond the lanes are cut, which no
/// comparison notices.
struct Choice
{
    Choice(__m128i paper, __m128i red)
    {
        const __m128i black = _mm_subs_epi16(_mm_subs_epi16(all(kFull), paper), red);
        takesInk = _mm_or_si128(_mm_cmpgt_epi16(black, paper), _mm_cmpgt_epi16(red, paper));
        takesRed = _mm_and_si128(_mm_cmpgt_epi16(red, black), takesInk);
        errors.paper = _mm_sub_epi16(paper, _mm_andnot_si128(takesInk, all(kFull)));
        errors.red = _mm_sub_epi16(red, _mm_and_si128(takesRed, all(kFull)));
    }

    __m128i takesInk;
    __m128i takesRed;
    Errors errors;
};

/// The lanes of all parts, a block each.
struct Squares
{
    Square paper;
    Square red;
    Square weights;
    Square bars;
};

/// Outside the row parts read and write here; nothing comes of it.
struct Outside
{
    std::array<std::int16_t, kBlock> paper{};
    std::array<std::int16_t, kBlock> red{};
};

/// Over a pixel of each part, the `x`-th of its block.
inline void pass(Squares *squares, std::size_t x, Errors *ahead)
{
    const __m128i bars = squares->bars[x];
    const __m128i paper =
        _mm_andnot_si128(barred<kNoPaper>(bars), _mm_add_epi16(squares->paper[x], ahead->paper));
    const __m128i redSum = chosen(barred<kNoBlack>(bars), _mm_sub_epi16(all(kFull), paper),
                                  _mm_add_epi16(squares->red[x], ahead->red));
    const __m128i red = _mm_andnot_si128(barred<kNoRed>(bars), redSum);
    squares->paper[x] = paper;
    squares->red[x] = red;
    const Errors errors = Choice(paper, red).errors;
    ahead->paper = partsOf(errors.paper, squares->weights[x]);
    ahead->red = partsOf(errors.red, squares->weights[x]);
}

// Always inline, so that it is made anew for a processor with AVX2, where it needs fewer
// instructions.
template <bool kRightward>
__attribute__((always_inline)) inline Errors carryAll(const ColorDiffusionLine &line)
{
    Outside outside;
    Errors ahead{_mm_setzero_si128(), _mm_setzero_si128()};
    for (std::size_t turn = 0; turn < line.parts.turns; ++turn) {
        Squares squares;
        std::int16_t *papers[kParts];
        std::int16_t *reds[kParts];
        for (std::size_t part = 0; part < kParts; ++part) {
            const std::ptrdiff_t x = line.parts.block(part, turn);
            const bool isOutside = line.parts.isOutside(x);
            papers[part] = isOutside ? outside.paper.data() : line.paper.sums + x;
            reds[part] = isOutside ? outside.red.data() : line.red.sums + x;
            squares.paper[part] = load(papers[part]);
            squares.red[part] = load(reds[part]);
            squares.weights[part] = isOutside ? _mm_setzero_si128() : weightsOf(line.ahead + x);
            squares.bars[part] = isOutside ? _mm_setzero_si128() : load(line.bars + x);
        }
        transpose(squares.paper);
        transpose(squares.red);
        transpose(squares.weights);
        transpose(squares.bars);
        for (std::size_t i = 0; i < kBlock; ++i) {
            pass(&squares, kRightward ? i : kBlock - 1 - i, &ahead);
        }
        transpose(squares.paper);
        transpose(squares.red);
        for (std::size_t part = 0; part < kParts; ++part) {
            store(papers[part], squares.paper[part]);
            store(reds[part], squares.red[part]);
        }
    }
    return ahead;
}

inline ColorPartEnds endsOf(const Errors &ahead)
{
    ColorPartEnds ends;
    store(ends.paper.data(), ahead.paper);
    store(ends.red.data(), ahead.red);
    return ends;
}

struct LaneWeights
{
    __m128i ahead;
    __m128i behind;
};

inline void leave8(const ColorPlaneLine &plane, std::size_t x, std::ptrdiff_t step, __m128i errors,
                   const LaneWeights &weights, __m128i pure)
{
    const __m128i behind = partsOf(errors, weights.behind);
    const __m128i ahead = partsOf(errors, weights.ahead);
    const __m128i down = _mm_sub_epi16(_mm_sub_epi16(errors, ahead), behind);
    store(plane.aside + std::ptrdiff_t(x) - step, behind);
    store(plane.down + x, chosen(pure, startsOf(plane, x), down));
}

Choice distribute8(const ColorDiffusionLine &line, std::size_t x)
{
    const Choice choice(load(line.paper.sums + x), load(line.red.sums + x));
    const LaneWeights weights{weightsOf(line.ahead + x), weightsOf(line.behind + x)};
    const __m128i pure = barred<kPure>(load(line.bars + x));
    const std::ptrdiff_t step = line.parts.step();
    leave8(line.paper, x, step, choice.errors.paper, weights, pure);
    leave8(line.red, x, step, choice.errors.red, weights, pure);
    return choice;
}

inline void setInk(std::uint8_t *ink, __m128i left, __m128i right)
{
    const unsigned bits = unsigned(_mm_movemask_epi8(_mm_packs_epi16(left, right)));
    ink[0] = kReversed[bits & 0xFF];
    ink[1] = kReversed[bits >> 8];
}

void distributeWhite(const ColorDiffusionLine &line, std::size_t x)
{
    const __m128i zero = _mm_setzero_si128();
    for (const ColorPlaneLine *plane : {&line.paper, &line.red}) {
        for (const std::size_t at : {x, x + kBlock}) {
            store(plane->aside + std::ptrdiff_t(at) - line.parts.step(), zero);
            store(plane->down + at, startsOf(*plane, at));
        }
    }
    setInk(line.blackInk + x / 8, zero, zero);
    setInk(line.redInk + x / 8, zero, zero);
}

} // namespace

void gatherColorsSse2(const ColorDiffusionLine &line)
{
    for (std::size_t x = 0; x < line.width; x += 16) {
        if (isWhite(line, x)) {
            gatherWhite(line, x);
            continue;
        }
        gather8(line, x);
        gather8(line, x + kBlock);
    }
}

ColorPartEnds carryColorsSse2(const ColorDiffusionLine &line)
{
    return endsOf(line.parts.rightward ? carryAll<true>(line) : carryAll<false>(line));
}

__attribute__((target("avx2"))) ColorPartEnds carryColorsAvx2(const ColorDiffusionLine &line)
{
    return endsOf(line.parts.rightward ? carryAll<true>(line) : carryAll<false>(line));
}

void distributeColorsSse2(const ColorDiffusionLine &line)
{
    clearSides(line.paper.aside, line.width);
    clearSides(line.red.aside, line.width);
    for (std::size_t x = 0; x < line.width; x += 16) {
        if (isWhite(line, x)) {
            distributeWhite(line, x);
            continue;
        }
        const Choice left = distribute8(line, x);
        const Choice right = distribute8(line, x + kBlock);
        setInk(line.redInk + x / 8, left.takesRed, right.takesRed);
        setInk(line.blackInk + x / 8, _mm_andnot_si128(left.takesRed, left.takesInk),
               _mm_andnot_si128(right.takesRed, right.takesInk));
    }
}

} // namespace imaging

#endif
