// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorDiffusion.h"

#include "imaging/BlueNoise.h"
#include "imaging/DiffusionLine.h"

#include <algorithm>

namespace imaging {
namespace {

/// Far from the paper's noise, so that the two have nothing to do with each other.
constexpr std::size_t kRedOffset = kBlueNoiseSide / 2;

int noisyStart(std::size_t x, std::size_t y)
{
    return startOf(kBlueNoise[y % kBlueNoiseSide][x % kBlueNoiseSide]);
}

std::uint8_t bitOf(std::size_t x)
{
    return std::uint8_t(0x80U >> (x % 8));
}

} // namespace

ColorDiffusion::ColorDiffusion(std::size_t width, const DiffusionTable &table)
    : mWidth(width)
    , mTable(table)
    , mShares(width + 2 * kMargin)
    , mErrors(mShares.size())
    , mAside(mShares.size() + 2)
{
    for (std::size_t x = 0; x < mErrors.size(); ++x) {
        mErrors[x] = start(x, kBlueNoiseSide - 1);
    }
}

ColorDiffusion::Amounts ColorDiffusion::start(std::size_t x, std::size_t y)
{
    return {noisyStart(x, y), noisyStart(x + kRedOffset, y + kRedOffset)};
}

void ColorDiffusion::gather()
{
    for (std::size_t x = 0; x < mErrors.size(); ++x) {
        const Amounts down = mErrors[x];
        const Amounts aside = mAside[x + 1];
        mErrors[x] = {errorFromAbove(down.paper, aside.paper, mShares[x].paper),
                      errorFromAbove(down.red, aside.red, mShares[x].red)};
    }
    std::fill(mAside.begin(), mAside.end(), Amounts());
}

/// What is due of paper and red; nothing is due of a colour that the pixel has no share of.
ColorDiffusion::Amounts ColorDiffusion::due(const Shares &shares, const Amounts &errors)
{
    const int paper = shares.paper == 0 ? 0 : shares.paper * 16 + errors.paper;
    if (shares.red == 0) {
        return {paper, 0};
    }
    return {paper, shares.black() == 0 ? kFull - paper : shares.red * 16 + errors.red};
}

ColorDiffusion::Dot ColorDiffusion::dotOf(const Amounts &due)
{
    const int black = kFull - due.paper - due.red;
    if (due.paper >= black && due.paper >= due.red) {
        return Dot::Paper;
    }
    return due.red > black ? Dot::Red : Dot::Black;
}

ColorDiffusion::Dot ColorDiffusion::diffuse(std::size_t x, std::ptrdiff_t step, Amounts *ahead)
{
    const Shares shares = mShares[x];
    const std::uint8_t most = std::max({shares.paper, shares.red, shares.black()});
    if (most == 255) {
        *ahead = {};
        mErrors[x] = start(x, mRow);
        return shares.paper == 255 ? Dot::Paper : shares.red == 255 ? Dot::Red : Dot::Black;
    }
    const Amounts sum = due(shares, {mErrors[x].paper + ahead->paper, mErrors[x].red + ahead->red});
    const Dot dot = dotOf(sum);
    const Amounts error{sum.paper - (dot == Dot::Paper ? kFull : 0),
                        sum.red - (dot == Dot::Red ? kFull : 0)};
    const DiffusionWeights weights = mTable[most];
    *ahead = {(error.paper * weights.ahead) >> 16, (error.red * weights.ahead) >> 16};
    const Amounts behind{(error.paper * weights.behind) >> 16, (error.red * weights.behind) >> 16};
    Amounts &aside = mAside[std::size_t(std::ptrdiff_t(x + 1) - step)];
    aside = {aside.paper + behind.paper, aside.red + behind.red};
    mErrors[x] = {error.paper - ahead->paper - behind.paper, error.red - ahead->red - behind.red};
    return dot;
}

/// As in ErrorDiffusion.
void ColorDiffusion::keepRest(const Amounts &left, const Amounts &right)
{
    const std::size_t width = mShares.size();
    const RowOrder order = rowOrder(mRow, width);
    const auto paper = [this](std::ptrdiff_t x, int share) {
        mAside[std::size_t(x + 1)].paper += share;
    };
    const auto red = [this](std::ptrdiff_t x, int share) {
        mAside[std::size_t(x + 1)].red += share;
    };
    if (order.seam > 0) {
        goOn(order.leftEnd(), 1, width, left.paper, paper);
        goOn(order.leftEnd(), 1, width, left.red, red);
    }
    goOn(order.rightEnd(width), -1, width, right.paper, paper);
    goOn(order.rightEnd(width), -1, width, right.red, red);
    const auto add = [](Amounts *error, const Amounts &more) {
        *error = {error->paper + more.paper, error->red + more.red};
    };
    add(&mErrors.front(), mAside.front());
    add(&mErrors.back(), mAside.back());
}

void ColorDiffusion::goThrough(std::uint8_t *blackInk, std::uint8_t *redInk)
{
    const std::size_t width = mShares.size();
    const RowOrder order = rowOrder(mRow, width);
    const std::size_t rights = width - order.seam;
    Amounts leftAhead;
    Amounts rightAhead;
    const auto pass = [&](std::size_t x, Amounts *ahead) {
        const Dot dot = diffuse(x, order.step(x), ahead);
        // Left of the page this is a number beyond its width, too.
        const std::size_t place = x - kMargin;
        if (place < mWidth) {
            blackInk[place / 8] |= dot == Dot::Black ? bitOf(place) : std::uint8_t(0);
            redInk[place / 8] |= dot == Dot::Red ? bitOf(place) : std::uint8_t(0);
        }
    };
    for (std::size_t i = 0; i < std::max(order.seam, rights); ++i) {
        if (i < order.seam) {
            pass(order.inward ? i : order.seam - 1 - i, &leftAhead);
        }
        if (i < rights) {
            pass(order.inward ? width - 1 - i : order.seam + i, &rightAhead);
        }
    }
    keepRest(leftAhead, rightAhead);
}

void ColorDiffusion::apply(const std::uint8_t *paper, const std::uint8_t *red,
                           std::uint8_t *blackInk, std::uint8_t *redInk)
{
    if (mWidth == 0) {
        return;
    }
    std::fill(blackInk, blackInk + (mWidth + 7) / 8, std::uint8_t(0));
    std::fill(redInk, redInk + (mWidth + 7) / 8, std::uint8_t(0));
    for (std::size_t x = 0; x < mShares.size(); ++x) {
        const std::size_t nearest = std::clamp(x, kMargin, kMargin + mWidth - 1) - kMargin;
        mShares[x] = {paper[nearest], red[nearest]};
    }
    gather();
    goThrough(blackInk, redInk);
    ++mRow;
}

} // namespace imaging
