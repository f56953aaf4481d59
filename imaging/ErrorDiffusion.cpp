// SPDX-License-Identifier: Apache-2.0
#include "imaging/ErrorDiffusion.h"

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <algorithm>

namespace imaging {
namespace {

void gather(const DiffusionLine &line)
{
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
    return sum < 0 ? sum + kHalf : sum - kHalf;
}

/// Takes the error over one pixel.
int carried(const DiffusionLine &line, std::ptrdiff_t x, int ahead)
{
    const int sum = line.sums[x] + ahead;
    line.sums[x] = std::int16_t(sum);
    return partOf(errorOf(sum), line.ahead[x]);
}

/// A block of every part in turns.
PartEnds carry(const DiffusionLine &line)
{
    const RowParts &parts = line.parts;
    PartEnds ahead{};
    for (std::size_t turn = 0; turn < parts.turns; ++turn) {
        for (std::size_t part = 0; part < kParts; ++part) {
            const std::ptrdiff_t from = parts.block(part, turn);
            if (parts.isOutside(from)) {
                continue;
            }
            int error = ahead[part];
            for (std::ptrdiff_t i = 0; i < std::ptrdiff_t(kBlock); ++i) {
                error = carried(line, from + (parts.rightward ? i : 7 - i), error);
            }
            ahead[part] = std::int16_t(error);
        }
    }
    return ahead;
}

void distribute(const DiffusionLine &line)
{
    std::fill(line.ink, line.ink + line.width / 8, std::uint8_t(0));
    std::fill(line.aside - 1, line.aside + line.width + 1, std::int16_t(0));
    for (std::size_t x = 0; x < line.width; ++x) {
        const int sum = line.sums[x];
        line.ink[x / 8] |= std::uint8_t(sum < 0 ? 0x80U >> (x % 8) : 0U);
        if (isExtreme(line.tones[x])) {
            line.down[x] = std::int16_t(startOf(line.noise[x % kBlueNoiseSide]));
            continue;
        }
        const int error = errorOf(sum);
        const int ahead = partOf(error, line.ahead[x]);
        const int behind = partOf(error, line.behind[x]);
        line.aside[std::ptrdiff_t(x) - line.parts.step()] = std::int16_t(behind);
        line.down[x] = std::int16_t(error - ahead - behind);
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
