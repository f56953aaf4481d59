// SPDX-License-Identifier: Apache-2.0
#include "imaging/ErrorDiffusion.h"

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <algorithm>

namespace imaging {
namespace {

// Each takes a copy of the line: what is written through pointers to bytes might otherwise be
// thought to be a part of it.

void gather(const DiffusionLine &row)
{
    const DiffusionLine line = row;
    for (std::size_t x = 0; x < line.width; ++x) {
        const int tone = line.tones[x];
        const int error = errorFromAbove(line.down[x], line.aside[x], tone);
        const int sum = tone == 0 ? -kCertain : tone == 255 ? kCertain : tone * 16 - kHalf + error;
        line.sums[x] = std::int16_t(sum);
        const DiffusionWeights weights = line.table->of(line.tones[x]);
        line.ahead[x] = weights.ahead;
        line.behind[x] = weights.behind;
    }
}

/// A white pixel's sum is at least 0, a black one's below; what remains is the error.
int errorOf(int sum)
{
    return without(sum + kHalf, kFull, sum >= 0);
}

/// A block of every part, a lane each.
struct Lanes
{
    std::int16_t sums[kBlock][kParts] = {};
    std::int16_t weights[kBlock][kParts] = {};
};

/// Calls work(pixel, lane, place in the block) for the blocks of a turn, in the order of the row.
template <typename Work> void forPixels(const RowParts &parts, std::size_t turn, Work work)
{
    for (std::size_t part = 0; part < kParts; ++part) {
        const std::ptrdiff_t from = parts.block(part, turn);
        if (parts.isOutside(from)) {
            continue;
        }
        for (std::size_t i = 0; i < kBlock; ++i) {
            work(from + std::ptrdiff_t(parts.rightward ? i : kBlock - 1 - i), part, i);
        }
    }
}

/// Takes the errors over all places, one after the other.
void carryThrough(Lanes *lanes, PartEnds *ahead)
{
    for (std::size_t i = 0; i < kBlock; ++i) {
        for (std::size_t part = 0; part < kParts; ++part) {
            const int sum = lanes->sums[i][part] + (*ahead)[part];
            lanes->sums[i][part] = std::int16_t(sum);
            (*ahead)[part] = std::int16_t(partOf(errorOf(sum), lanes->weights[i][part]));
        }
    }
}

PartEnds carry(const DiffusionLine &row)
{
    const DiffusionLine line = row;
    PartEnds ahead{};
    for (std::size_t turn = 0; turn < line.parts.turns; ++turn) {
        Lanes lanes;
        forPixels(line.parts, turn, [&](std::ptrdiff_t x, std::size_t part, std::size_t i) {
            lanes.sums[i][part] = line.sums[x];
            lanes.weights[i][part] = line.ahead[x];
        });
        carryThrough(&lanes, &ahead);
        forPixels(line.parts, turn, [&](std::ptrdiff_t x, std::size_t part, std::size_t i) {
            line.sums[x] = lanes.sums[i][part];
        });
    }
    return ahead;
}

/// What the pixels [0, width) leave to the row below. `behind` is where each leaves what goes
/// aside.
void leave(const std::int16_t *sums, const std::uint8_t *aheads, const std::uint8_t *behinds,
           std::size_t width, std::int16_t *down, std::int16_t *aside)
{
    for (std::size_t x = 0; x < width; ++x) {
        const int error = errorOf(sums[x]);
        const int behind = partOf(error, behinds[x]);
        aside[x] = std::int16_t(behind);
        down[x] = std::int16_t(error - partOf(error, aheads[x]) - behind);
    }
}

void distribute(const DiffusionLine &row)
{
    const DiffusionLine line = row;
    clearSides(line.aside, line.width);
    leave(line.sums, line.ahead, line.behind, line.width, line.down,
          line.aside - line.parts.step());
    for (std::size_t x = 0; x < line.width; x += 8) {
        unsigned bits = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            bits |= unsigned(line.sums[x + i] < 0) << (7 - i);
        }
        line.ink[x / 8] = std::uint8_t(bits);
    }
    for (std::size_t x = 0; x < line.width; ++x) {
        if (isExtreme(line.tones[x])) {
            line.down[x] = std::int16_t(startOf(line.noise[x % kBlueNoiseSide]));
        }
    }
}

void add(std::int16_t *error, int more)
{
    *error = std::int16_t(*error + more);
}

/// Nothing is lost: what is left of a part goes on in the next one, and the sides of the row send
/// all back.
void keepRest(const DiffusionLine &line, const PartEnds &ends)
{
    const auto give = [&line](std::ptrdiff_t x, int error) { add(&line.aside[x], error); };
    for (std::size_t part = 0; part < kParts; ++part) {
        goOn(line.parts, line.parts.behindEnd(part), ends[part], give);
    }
    const std::ptrdiff_t behindRow = line.parts.behindRow();
    goOn(line.parts, behindRow, line.sums[behindRow] - kCertain, give);
    add(&line.down[0], line.aside[-1]);
    add(&line.down[line.width - 1], line.aside[line.width]);
}

struct Steps
{
    void (*gather)(const DiffusionLine &line);
    PartEnds (*carry)(const DiffusionLine &line);
    void (*distribute)(const DiffusionLine &line);
};

Steps stepsOf(ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return {gatherAvx2, carryAvx2, distributeAvx2};
    case ProcessorPath::Sse2:
        return {gatherSse2, carrySse2, distributeSse2};
#endif
    default:
        return {gather, carry, distribute};
    }
}

} // namespace

ErrorDiffusion::ErrorDiffusion(std::size_t width, const DiffusionTable &table)
    : mWidth(width)
    , mTable(table)
    , mTones(widthWithMargins(width))
    , mDown(mTones.size())
    , mAside(mTones.size() + 2)
    , mSums(mTones.size() + 2 * kBlock)
    , mAhead(mTones.size() + 2 * kBlock)
    , mBehind(mTones.size())
    , mInk(mTones.size() / 8)
{
    for (std::size_t x = 0; x < mDown.size(); ++x) {
        mDown[x] = std::int16_t(startOf(kBlueNoise[kBlueNoiseSide - 1][x % kBlueNoiseSide]));
    }
}

void ErrorDiffusion::apply(const std::uint8_t *grey, std::uint8_t *ink, ProcessorPath path)
{
    if (mWidth == 0) {
        return;
    }
    std::fill_n(mTones.begin(), kMargin, grey[0]);
    std::copy_n(grey, mWidth, mTones.begin() + kMargin);
    std::fill(mTones.begin() + std::ptrdiff_t(kMargin + mWidth), mTones.end(), grey[mWidth - 1]);
    diffuse(path);
    std::copy_n(mInk.begin() + kMargin / 8, (mWidth + 7) / 8, ink);
    // What is right of the page is not part of it.
    ink[(mWidth - 1) / 8] &= std::uint8_t(0xFF00U >> ((mWidth - 1) % 8 + 1));
}

void ErrorDiffusion::diffuse(ProcessorPath path)
{
    const DiffusionLine line{mTones.size(),
                             rowParts(mRow, mTones.size()),
                             mTones.data(),
                             kBlueNoise[mRow % kBlueNoiseSide],
                             &mTable,
                             mDown.data(),
                             mAside.data() + 1,
                             mSums.data() + kBlock,
                             mAhead.data() + kBlock,
                             mBehind.data(),
                             mInk.data()};
    ++mRow;
    setSides(line.sums, line.width, kCertain);
    const Steps steps = stepsOf(path);
    steps.gather(line);
    const PartEnds ends = steps.carry(line);
    steps.distribute(line);
    keepRest(line, ends);
}

} // namespace imaging
