// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorDiffusion.h"

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <algorithm>

namespace imaging {
namespace {

using Plane = ColorDiffusion::Plane;

/// Far from the paper's noise, so that the two have nothing to do with each other.
constexpr std::size_t kRedOffset = kBlueNoiseSide / 2;

enum Dot : std::uint16_t
{
    kPaperDot = 0,
    kBlackDot = 1,
    kRedDot = 2
};

int noisyStart(std::size_t x, std::size_t y)
{
    return startOf(kBlueNoise[y % kBlueNoiseSide][x % kBlueNoiseSide]);
}

void setShares(Plane *plane, const std::uint8_t *shares, std::size_t width)
{
    std::uint8_t *to = plane->shares.data();
    std::fill_n(to, kMargin, shares[0]);
    std::copy_n(shares, width, to + kMargin);
    std::fill_n(to + kMargin + width, kMargin, shares[width - 1]);
}

void gather(Plane *plane)
{
    const std::size_t width = plane->shares.size();
    const std::uint8_t *shares = plane->shares.data();
    const std::int32_t *down = plane->down.data();
    const std::int32_t *aside = plane->aside.data() + 1;
    std::int32_t *sums = plane->sums.data();
    for (std::size_t x = 0; x < width; ++x) {
        sums[x] = shares[x] * 16 + errorFromAbove(down[x], aside[x], shares[x]);
    }
    std::fill(plane->aside.begin(), plane->aside.end(), 0);
}

/// What is carried along from pixel to pixel.
struct Ahead
{
    std::int32_t paper = 0;
    std::int32_t red = 0;
};

/// A row at work, with nothing between it and its numbers.
class Row
{
public:
    Row(Plane *paper, Plane *red, const DiffusionTable &table, std::size_t row, std::uint16_t *dots)
        : mPaper(*paper)
        , mRed(*red)
        , mTable(table)
        , mRow(row)
        , mDots(dots)
    { }

    /// Chooses the pixel's dot and leaves its errors; `step` leads to the next pixel.
    void pass(std::size_t x, std::ptrdiff_t step, Ahead *ahead)
    {
        const int paper = mPaper.shares[x];
        const int red = mRed.shares[x];
        const int black = 255 - paper - red;
        const int most = std::max({paper, red, black});
        if (most == 255) {
            end(x, ahead);
            return;
        }
        // Nothing is due of a colour that the pixel has no share of.
        const int paperDue = paper == 0 ? 0 : mPaper.sums[x] + ahead->paper;
        const int redSum = black == 0 ? kFull - paperDue : mRed.sums[x] + ahead->red;
        const int redDue = red == 0 ? 0 : redSum;
        const int blackDue = kFull - paperDue - redDue;
        // Numbers, not branches: what a pixel takes cannot be guessed, and a processor that guesses
        // loses more time than the pixel needs.
        const int takesPaper = int(paperDue >= blackDue) & int(paperDue >= redDue);
        const int takesRed = int(redDue > blackDue) & (1 - takesPaper);
        mDots[x] = std::uint16_t((1 - takesPaper) << takesRed);
        const DiffusionWeights weights = mTable[std::size_t(most)];
        ahead->paper = leave(&mPaper, x, step, paperDue - takesPaper * kFull, weights);
        ahead->red = leave(&mRed, x, step, redDue - takesRed * kFull, weights);
    }

private:
    struct Errors
    {
        explicit Errors(Plane &plane)
            : shares(plane.shares.data())
            , sums(plane.sums.data())
            , down(plane.down.data())
            , aside(plane.aside.data() + 1)
        { }

        const std::uint8_t *shares;
        const std::int32_t *sums;
        std::int32_t *down;
        std::int32_t *aside;
    };

    /// Pure colours: the error ends here.
    void end(std::size_t x, Ahead *ahead)
    {
        mDots[x] = mPaper.shares[x] == 255 ? kPaperDot
            : mRed.shares[x] == 255        ? kRedDot
                                           : kBlackDot;
        mPaper.down[x] = noisyStart(x, mRow);
        mRed.down[x] = noisyStart(x + kRedOffset, mRow + kRedOffset);
        *ahead = {};
    }

    /// What is carried ahead of the error.
    static int leave(Errors *errors, std::size_t x, std::ptrdiff_t step, int error,
                     const DiffusionWeights &weights)
    {
        const int ahead = (error * weights.ahead) >> 16;
        const int behind = (error * weights.behind) >> 16;
        errors->aside[std::ptrdiff_t(x) - step] += behind;
        errors->down[x] = error - ahead - behind;
        return ahead;
    }

    Errors mPaper;
    Errors mRed;
    const DiffusionTable &mTable;
    std::size_t mRow;
    std::uint16_t *mDots;
};

/// As in ErrorDiffusion.
void keepRest(Plane *plane, const RowOrder &order, int left, int right)
{
    const std::size_t width = plane->shares.size();
    const auto give = [plane](std::ptrdiff_t x, int share) {
        plane->aside[std::size_t(x + 1)] += share;
    };
    if (order.seam > 0) {
        goOn(order.leftEnd(), 1, width, left, give);
    }
    goOn(order.rightEnd(width), -1, width, right, give);
    plane->down.front() += plane->aside.front();
    plane->down.back() += plane->aside.back();
}

/// The bits of the pixels that are `dot`.
void pack(const std::uint16_t *dots, Dot dot, std::size_t width, std::uint8_t *ink)
{
    for (std::size_t x = 0; x < width; x += 8) {
        const std::size_t count = std::min<std::size_t>(8, width - x);
        unsigned bits = 0;
        for (std::size_t i = 0; i < count; ++i) {
            bits |= unsigned(dots[x + i] == dot) << (7 - i);
        }
        ink[x / 8] = std::uint8_t(bits);
    }
}

} // namespace

ColorDiffusion::Plane::Plane(std::size_t width)
    : shares(width)
    , sums(width)
    , down(width)
    , aside(width + 2)
{ }

ColorDiffusion::ColorDiffusion(std::size_t width, const DiffusionTable &table)
    : mWidth(width)
    , mTable(table)
    , mPaper(width + 2 * kMargin)
    , mRed(width + 2 * kMargin)
    , mDots(width + 2 * kMargin)
{
    for (std::size_t x = 0; x < mDots.size(); ++x) {
        mPaper.down[x] = noisyStart(x, kBlueNoiseSide - 1);
        mRed.down[x] = noisyStart(x + kRedOffset, kRedOffset - 1);
    }
}

void ColorDiffusion::apply(const std::uint8_t *paper, const std::uint8_t *red,
                           std::uint8_t *blackInk, std::uint8_t *redInk)
{
    if (mWidth == 0) {
        return;
    }
    setShares(&mPaper, paper, mWidth);
    setShares(&mRed, red, mWidth);
    gather(&mPaper);
    gather(&mRed);
    goThrough();
    pack(mDots.data() + kMargin, kBlackDot, mWidth, blackInk);
    pack(mDots.data() + kMargin, kRedDot, mWidth, redInk);
    ++mRow;
}

void ColorDiffusion::goThrough()
{
    const std::size_t width = mDots.size();
    const RowOrder order = rowOrder(mRow, width);
    const std::size_t rights = width - order.seam;
    const std::ptrdiff_t step = order.inward ? 1 : -1;
    Row row(&mPaper, &mRed, mTable, mRow, mDots.data());
    std::size_t left = order.inward ? 0 : order.seam - 1;
    std::size_t right = order.inward ? width - 1 : order.seam;
    Ahead leftAhead;
    Ahead rightAhead;
    for (std::size_t i = 0; i < std::max(order.seam, rights); ++i) {
        if (i < order.seam) {
            row.pass(left, step, &leftAhead);
            left += std::size_t(step);
        }
        if (i < rights) {
            row.pass(right, -step, &rightAhead);
            right -= std::size_t(step);
        }
    }
    keepRest(&mPaper, order, leftAhead.paper, rightAhead.paper);
    keepRest(&mRed, order, leftAhead.red, rightAhead.red);
}

} // namespace imaging
