// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorDiffusion.h"

#include "imaging/BlueNoise.h"
#include "imaging/ColorDiffusionLine.h"

#include <algorithm>

namespace imaging {
namespace {

/// Far from the paper's noise, so that the two have nothing to do with each other.
constexpr std::size_t kRedOffset = kBlueNoiseSide / 2;

int startAt(const ColorPlaneLine &plane, std::size_t x)
{
    return startOf(plane.noise[(x + plane.noiseOffset) % kBlueNoiseSide]);
}

void gatherPlane(const ColorPlaneLine &plane, std::size_t width)
{
    for (std::size_t x = 0; x < width; ++x) {
        const int share = plane.shares[x];
        const int error = errorFromAbove(plane.down[x], plane.aside[x], share);
        plane.sums[x] = std::int16_t(share * 16 + error);
    }
}

void gather(const ColorDiffusionLine &row)
{
    const ColorDiffusionLine line = row;
    gatherPlane(line.paper, line.width);
    gatherPlane(line.red, line.width);
    for (std::size_t x = 0; x < line.width; ++x) {
        const int paper = line.paper.shares[x];
        const int red = line.red.shares[x];
        const int black = 255 - paper - red;
        const int most = std::max({paper, red, black});
        const DiffusionWeights weights = line.table->of(std::uint8_t(most));
        line.ahead[x] = weights.ahead;
        line.behind[x] = weights.behind;
        line.bars[x] = std::uint16_t((paper == 0 ? kNoPaper : 0) | (red == 0 ? kNoRed : 0)
                                     | (black == 0 ? kNoBlack : 0) | (most == 255 ? kPure : 0));
        if (paper == 255) {
            line.paper.sums[x] = kCertain;
        }
    }
}

/// What is due of each colour, and the colour of which most is due.
struct Choice
{
    Choice(int paperDue, int redDue)
        : paper(paperDue)
        , red(redDue)
    {
        const int black = kFull - paper - red;
        takesPaper = (paper >= black) & (paper >= red);
        takesRed = (red > black) & !takesPaper;
    }

    int paperError() const { return without(paper, kFull, takesPaper); }
    int redError() const { return without(red, kFull, takesRed); }

    int paper;
    int red;
    bool takesPaper;
    bool takesRed;
};

struct Ahead
{
    int paper = 0;
    int red = 0;
};

/// Takes the errors over one pixel. Nothing is due of a colour that the pixel has no share of.
Ahead carried(const ColorDiffusionLine &line, std::ptrdiff_t x, const Ahead &ahead)
{
    const int bars = line.bars[x];
    const int paper = (bars & kNoPaper) != 0 ? 0 : line.paper.sums[x] + ahead.paper;
    const int redSum = (bars & kNoBlack) != 0 ? kFull - paper : line.red.sums[x] + ahead.red;
    const int red = (bars & kNoRed) != 0 ? 0 : redSum;
    line.paper.sums[x] = std::int16_t(paper);
    line.red.sums[x] = std::int16_t(red);
    const Choice choice(paper, red);
    const int weight = line.ahead[x];
    return {partOf(choice.paperError(), weight), partOf(choice.redError(), weight)};
}

/// A pixel of every part in turns.
ColorPartEnds carry(const ColorDiffusionLine &row)
{
    const ColorDiffusionLine line = row;
    const RowParts &parts = line.parts;
    ColorPartEnds ends;
    for (std::size_t turn = 0; turn < parts.turns * kBlock; ++turn) {
        for (std::size_t part = 0; part < kParts; ++part) {
            const std::ptrdiff_t x = parts.pixel(part, turn);
            if (x >= -1 && x <= std::ptrdiff_t(line.width)) {
                const Ahead ahead = carried(line, x, {ends.paper[part], ends.red[part]});
                ends.paper[part] = std::int16_t(ahead.paper);
                ends.red[part] = std::int16_t(ahead.red);
            }
        }
    }
    return ends;
}

/// What a pixel leaves to the row below.
void leave(const ColorPlaneLine &plane, std::size_t x, std::ptrdiff_t step, int error,
           const DiffusionWeights &weights)
{
    const int behind = partOf(error, weights.behind);
    plane.aside[std::ptrdiff_t(x) - step] = std::int16_t(behind);
    plane.down[x] = std::int16_t(error - partOf(error, weights.ahead) - behind);
}

/// The pixel's errors go to the row below.
void leaveBoth(const ColorDiffusionLine &line, std::size_t x, const Choice &choice)
{
    if ((line.bars[x] & kPure) != 0) {
        line.paper.down[x] = std::int16_t(startAt(line.paper, x));
        line.red.down[x] = std::int16_t(startAt(line.red, x));
        return;
    }
    const DiffusionWeights weights{line.ahead[x], line.behind[x]};
    leave(line.paper, x, line.parts.step(), choice.paperError(), weights);
    leave(line.red, x, line.parts.step(), choice.redError(), weights);
}

void distribute(const ColorDiffusionLine &row)
{
    const ColorDiffusionLine line = row;
    for (const ColorPlaneLine *plane : {&line.paper, &line.red}) {
        std::fill(plane->aside - 1, plane->aside + line.width + 1, std::int16_t(0));
    }
    for (std::size_t x = 0; x < line.width; x += 8) {
        unsigned black = 0;
        unsigned red = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            const Choice choice(line.paper.sums[x + i], line.red.sums[x + i]);
            black = black * 2 + unsigned(!choice.takesPaper & !choice.takesRed);
            red = red * 2 + unsigned(choice.takesRed);
            leaveBoth(line, x + i, choice);
        }
        line.blackInk[x / 8] = std::uint8_t(black);
        line.redInk[x / 8] = std::uint8_t(red);
    }
}

/// As in ErrorDiffusion. `sideSum` is what the sums beside the row began with.
void keepRest(const ColorPlaneLine &plane, const RowParts &parts, const PartEnds &ends, int sideSum)
{
    const auto give = [&plane](std::ptrdiff_t x, int error) {
        plane.aside[x] = std::int16_t(plane.aside[x] + error);
    };
    for (std::size_t part = 0; part < kParts; ++part) {
        goOn(parts, parts.behindEnd(part), ends[part], give);
    }
    goOn(parts, parts.behindRow(), plane.sums[parts.behindRow()] - sideSum, give);
    plane.down[0] = std::int16_t(plane.down[0] + plane.aside[-1]);
    std::int16_t &last = plane.down[parts.width - 1];
    last = std::int16_t(last + plane.aside[parts.width]);
}

/// The dots of the page without its margins.
void copyInk(const std::vector<std::uint8_t> &from, std::size_t width, std::uint8_t *to)
{
    std::copy_n(from.begin() + kMargin / 8, (width + 7) / 8, to);
    to[(width - 1) / 8] &= std::uint8_t(0xFF00U >> ((width - 1) % 8 + 1));
}

struct Steps
{
    void (*gather)(const ColorDiffusionLine &line);
    ColorPartEnds (*carry)(const ColorDiffusionLine &line);
    void (*distribute)(const ColorDiffusionLine &line);
};

Steps stepsOf(ProcessorPath path)
{
    switch (path) {
#if defined(__x86_64__)
    case ProcessorPath::Avx2:
        return {gatherColorsAvx2, carryColorsAvx2, distributeColorsAvx2};
    case ProcessorPath::Sse2:
        return {gatherColorsSse2, carryColorsSse2, distributeColorsSse2};
#endif
    default:
        return {gather, carry, distribute};
    }
}

} // namespace

ColorDiffusion::Plane::Plane(std::size_t width)
    : shares(width)
    , sums(width + 2 * kBlock)
    , down(width)
    , aside(width + 2)
    , ink(width / 8)
{ }

void ColorDiffusion::Plane::setShares(const std::uint8_t *row, std::size_t width)
{
    std::fill_n(shares.begin(), kMargin, row[0]);
    std::copy_n(row, width, shares.begin() + kMargin);
    std::fill(shares.begin() + std::ptrdiff_t(kMargin + width), shares.end(), row[width - 1]);
}

ColorPlaneLine ColorDiffusion::Plane::line(std::size_t row, std::size_t offset)
{
    return {shares.data(),    kBlueNoise[(row + offset) % kBlueNoiseSide],
            offset,           down.data(),
            aside.data() + 1, sums.data() + kBlock};
}

ColorDiffusion::ColorDiffusion(std::size_t width, const DiffusionTable &table)
    : mWidth(width)
    , mTable(table)
    , mPaper(widthWithMargins(width))
    , mRed(widthWithMargins(width))
    , mAhead(widthWithMargins(width) + 2 * kBlock)
    , mBehind(widthWithMargins(width))
    , mBars(mAhead.size())
{
    const ColorPlaneLine paper = mPaper.line(kBlueNoiseSide - 1, 0);
    const ColorPlaneLine red = mRed.line(kBlueNoiseSide - 1, kRedOffset);
    for (std::size_t x = 0; x < mBehind.size(); ++x) {
        paper.down[x] = std::int16_t(startAt(paper, x));
        red.down[x] = std::int16_t(startAt(red, x));
    }
}

void ColorDiffusion::apply(const std::uint8_t *paper, const std::uint8_t *red,
                           std::uint8_t *blackInk, std::uint8_t *redInk, ProcessorPath path)
{
    if (mWidth == 0) {
        return;
    }
    mPaper.setShares(paper, mWidth);
    mRed.setShares(red, mWidth);
    diffuse(path);
    copyInk(mPaper.ink, mWidth, blackInk);
    copyInk(mRed.ink, mWidth, redInk);
}

void ColorDiffusion::diffuse(ProcessorPath path)
{
    const std::size_t width = mBehind.size();
    const ColorDiffusionLine line{width,
                                  rowParts(mRow, width),
                                  &mTable,
                                  mPaper.line(mRow, 0),
                                  mRed.line(mRow, kRedOffset),
                                  mAhead.data() + kBlock,
                                  mBehind.data(),
                                  mBars.data() + kBlock,
                                  mPaper.ink.data(),
                                  mRed.ink.data()};
    ++mRow;
    setSides(line.paper.sums, width, kCertain);
    setSides(line.red.sums, width, 0);
    const Steps steps = stepsOf(path);
    steps.gather(line);
    const ColorPartEnds ends = steps.carry(line);
    steps.distribute(line);
    keepRest(line.paper, line.parts, ends.paper, kCertain);
    keepRest(line.red, line.parts, ends.red, 0);
}

} // namespace imaging
