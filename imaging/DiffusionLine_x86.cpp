// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionLine.h"

#if defined(__x86_64__)

#include "imaging/Bits.h"
#include "imaging/DiffusionLanes_x86.h"

namespace imaging {
namespace {

inline bool allExtreme(const std::uint8_t *tones)
{
    const __m128i group = load(tones);
    const __m128i extreme = _mm_or_si128(_mm_cmpeq_epi8(group, _mm_setzero_si128()),
                                         _mm_cmpeq_epi8(group, _mm_set1_epi8(-1)));
    return _mm_movemask_epi8(extreme) == 0xFFFF;
}

void gather8(const DiffusionLine &line, std::size_t x)
{
    const __m128i tones = widened(line.tones + x);
    const __m128i error = errorsFromAbove(load(line.down + x), load(line.aside + x), tones);
    const __m128i grey = _mm_sub_epi16(_mm_slli_epi16(tones, 4), all(kHalf));
    const __m128i sum = _mm_add_epi16(grey, error);
    const __m128i black = _mm_cmpeq_epi16(tones, _mm_setzero_si128());
    const __m128i white = _mm_cmpeq_epi16(tones, all(255));
    store(line.sums + x, chosen(white, all(kCertain), chosen(black, all(-kCertain), sum)));
}

/// 16 pixels without grey.
void gatherExtremes(const DiffusionLine &line, std::size_t x)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i black = _mm_cmpeq_epi8(load(line.tones + x), zero);
    const __m128i low = _mm_unpacklo_epi8(black, black);
    const __m128i high = _mm_unpackhi_epi8(black, black);
    store(line.sums + x, chosen(low, all(-kCertain), all(kCertain)));
    store(line.sums + x + 8, chosen(high, all(-kCertain), all(kCertain)));
    store(line.ahead + x, zero);
    store(line.behind + x, zero);
}

/// Where a part's lane reads and writes in a turn. Outside the row there are pixels of its own,
/// which nothing comes of.
struct Lane
{
    std::int16_t *sums;
    const std::uint8_t *weights;
};

struct Outside
{
    std::array<std::int16_t, kBlock> sums{};
    std::array<std::uint8_t, kBlock> weights{};
};

inline Lane laneOf(const DiffusionLine &line, std::size_t part, std::size_t turn, Outside *outside)
{
    const std::ptrdiff_t x = line.parts.block(part, turn);
    if (line.parts.isOutside(x)) {
        return {outside->sums.data(), outside->weights.data()};
    }
    return {line.sums + x, line.ahead + x};
}

/// Takes the errors of all parts over a pixel each.
inline __m128i carried(__m128i sum, __m128i weight)
{
    // Twice the error at once: nothing here is as large as to be cut.
    const __m128i inked = _mm_and_si128(_mm_srai_epi16(sum, 15), all(2 * kFull));
    const __m128i twice = _mm_sub_epi16(_mm_add_epi16(sum, sum), all(kFull));
    return _mm_mulhi_epi16(_mm_add_epi16(twice, inked), weight);
}

// Always inline, so that it is made anew for a processor with AVX2, where it needs fewer
// instructions.
template <bool kRightward>
__attribute__((always_inline)) inline __m128i carryAll(const DiffusionLine &line)
{
    Outside outside;
    __m128i ahead = _mm_setzero_si128();
    for (std::size_t turn = 0; turn < line.parts.turns; ++turn) {
        Square sums;
        Square weights;
        std::int16_t *places[kParts];
        for (std::size_t part = 0; part < kParts; ++part) {
            const Lane lane = laneOf(line, part, turn, &outside);
            places[part] = lane.sums;
            sums[part] = load(lane.sums);
            weights[part] = weightsOf(lane.weights);
        }
        transpose(sums);
        transpose(weights);
        for (std::size_t i = 0; i < kBlock; ++i) {
            const std::size_t x = kRightward ? i : kBlock - 1 - i;
            sums[x] = _mm_add_epi16(sums[x], ahead);
            ahead = carried(sums[x], weights[x]);
        }
        transpose(sums);
        for (std::size_t part = 0; part < kParts; ++part) {
            store(places[part], sums[part]);
        }
    }
    return ahead;
}

void distribute8(const DiffusionLine &line, std::size_t x, __m128i sum)
{
    const __m128i tones = widened(line.tones + x);
    const __m128i extreme =
        _mm_or_si128(_mm_cmpeq_epi16(tones, _mm_setzero_si128()), _mm_cmpeq_epi16(tones, all(255)));
    const __m128i half =
        _mm_sub_epi16(_mm_and_si128(_mm_srai_epi16(sum, 15), all(kFull)), all(kHalf));
    const __m128i error = _mm_add_epi16(sum, half);
    const __m128i ahead = partsOf(error, weightsOf(line.ahead + x));
    const __m128i behind = partsOf(error, weightsOf(line.behind + x));
    const __m128i down = _mm_sub_epi16(_mm_sub_epi16(error, ahead), behind);
    store(line.aside + std::ptrdiff_t(x) - line.parts.step(), behind);
    store(line.down + x, chosen(extreme, starts(line.noise + x % kBlueNoiseSide), down));
}

void distribute16(const DiffusionLine &line, std::size_t x)
{
    const __m128i left = load(line.sums + x);
    const __m128i right = load(line.sums + x + 8);
    // Packing keeps the signs.
    const unsigned bits = unsigned(_mm_movemask_epi8(_mm_packs_epi16(left, right)));
    line.ink[x / 8] = kReversed[bits & 0xFF];
    line.ink[x / 8 + 1] = kReversed[bits >> 8];
    if (allExtreme(line.tones + x)) {
        for (const std::size_t at : {x, x + 8}) {
            store(line.aside + std::ptrdiff_t(at) - line.parts.step(), _mm_setzero_si128());
            store(line.down + at, starts(line.noise + at % kBlueNoiseSide));
        }
        return;
    }
    distribute8(line, x, left);
    distribute8(line, x + 8, right);
}

} // namespace

void gatherSse2(const DiffusionLine &line)
{
    const DiffusionTable &table = *line.table;
    for (std::size_t x = 0; x < line.width; x += 16) {
        if (allExtreme(line.tones + x)) {
            gatherExtremes(line, x);
            continue;
        }
        gather8(line, x);
        gather8(line, x + 8);
        for (std::size_t i = x; i < x + 16; ++i) {
            const DiffusionWeights weights = table.of(line.tones[i]);
            line.ahead[i] = weights.ahead;
            line.behind[i] = weights.behind;
        }
    }
}

PartEnds carrySse2(const DiffusionLine &line)
{
    PartEnds ends;
    store(ends.data(), line.parts.rightward ? carryAll<true>(line) : carryAll<false>(line));
    return ends;
}

__attribute__((target("avx2"))) PartEnds carryAvx2(const DiffusionLine &line)
{
    PartEnds ends;
    store(ends.data(), line.parts.rightward ? carryAll<true>(line) : carryAll<false>(line));
    return ends;
}

void distributeSse2(const DiffusionLine &line)
{
    clearSides(line.aside, line.width);
    for (std::size_t x = 0; x < line.width; x += 16) {
        distribute16(line, x);
    }
}

} // namespace imaging

#endif
