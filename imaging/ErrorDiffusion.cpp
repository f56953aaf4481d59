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
    }
}

/// A white pixel's sum is at least 0, a black one's below; what remains is the error.
int errorOf(int sum)
{
    return sum < 0 ? sum + kHalf : sum - kHalf;
}

/// Adds `ahead` to `sum` and gives `inked` when the result is negative, else `clear`. The outcome
/// is as good as random: guessing it, as a processor does at a branch, costs more than the whole
/// pixel.
inline int added(int ahead, int inked, int clear, int *sum)
{
#if defined(__x86_64__)
    asm("addl %[ahead], %[sum]\n\tcmovs %[inked], %[clear]"
        : [sum] "+r"(*sum), [clear] "+r"(clear)
        : [ahead] "r"(ahead), [inked] "r"(inked)
        : "cc");
    return clear;
#else
    *sum += ahead;
    return *sum < 0 ? inked : clear;
#endif
}

/// Takes the error over one pixel: errorOf(sum) * part >> 16, arranged so that little of it waits
/// for `ahead`.
inline int carried(const DiffusionLine &line, std::size_t x, int ahead)
{
    const DiffusionWeights weights = (*line.table)[line.tones[x]];
    line.weights[x] = weights;
    const int part = weights.ahead;
    int sum = line.sums[x];
    const int clear = part * (sum - kHalf);
    const int rest = added(ahead, clear + part * kFull, clear, &sum);
    line.sums[x] = std::int16_t(sum);
    return (part * ahead + rest) >> 16;
}

/// Whether the group has no grey; there no error is carried along.
bool allExtreme(const std::uint8_t *tones)
{
#if defined(__x86_64__)
    return allExtremeSse2(tones);
#else
    return std::all_of(tones, tones + kGroup, isExtreme);
#endif
}

/// The way through one side of a row, group after group.
template <int kStep> class Way
{
public:
    /// Over the pixels [from, to); `from` is at the start of a group.
    Way(const DiffusionLine &line, std::size_t from, std::size_t to)
        : mLine(line)
        , mFrom(from)
        , mTo(to)
        , mAt(kStep > 0 ? from : wholeGroups(to))
    { }

    /// The pixels up to the next group with grey are passed. How many it has, 0 at the end.
    std::size_t nextGroup()
    {
        while (kStep > 0 ? mAt < mTo : mAt > mFrom) {
            const std::size_t start = kStep > 0 ? mAt : mAt - kGroup;
            mAt = kStep > 0 ? mAt + kGroup : mAt - kGroup;
            if (!allExtreme(mLine.tones + start)) {
                const std::size_t end = std::min(start + kGroup, mTo);
                mX = kStep > 0 ? start : end - 1;
                return end - start;
            }
            mAhead = 0;
        }
        return 0;
    }

    /// Over the group's next pixel.
    void pass()
    {
        mAhead = carried(mLine, mX, mAhead);
        mX += std::size_t(kStep);
    }

    int ahead() const { return mAhead; }

private:
    const DiffusionLine &mLine;
    std::size_t mFrom;
    std::size_t mTo;
    std::size_t mAt;
    std::size_t mX = 0;
    int mAhead = 0;
};

/// What is left at the end of either side.
struct Ends
{
    int left = 0;
    int right = 0;
};

/// To the end, beginning with `count` pixels of a group.
template <int kStep> void passRest(Way<kStep> *way, std::size_t count)
{
    for (; count > 0; count = way->nextGroup()) {
        for (std::size_t i = 0; i < count; ++i) {
            way->pass();
        }
    }
}

template <int kStep> Ends carryThrough(const DiffusionLine &line)
{
    Way<kStep> left(line, 0, line.order.seam);
    Way<-kStep> right(line, line.order.seam, line.width);
    std::size_t lefts = left.nextGroup();
    std::size_t rights = right.nextGroup();
    while (lefts > 0 && rights > 0) {
        const std::size_t both = std::min(lefts, rights);
        for (std::size_t i = 0; i < both; ++i) {
            left.pass();
            right.pass();
        }
        lefts = lefts > both ? lefts - both : left.nextGroup();
        rights = rights > both ? rights - both : right.nextGroup();
    }
    passRest(&left, lefts);
    passRest(&right, rights);
    return {left.ahead(), right.ahead()};
}

void distribute(const DiffusionLine &line)
{
    std::fill(line.ink, line.ink + (line.width + 7) / 8, std::uint8_t(0));
    std::fill(line.aside - 1, line.aside + line.width + 1, std::int16_t(0));
    for (std::size_t x = 0; x < line.width; ++x) {
        const int sum = line.sums[x];
        line.ink[x / 8] |= std::uint8_t(sum < 0 ? 0x80U >> (x % 8) : 0U);
        if (isExtreme(line.tones[x])) {
            line.down[x] = std::int16_t(startOf(line.noise[x % kBlueNoiseSide]));
            continue;
        }
        const int error = errorOf(sum);
        const int ahead = (error * line.weights[x].ahead) >> 16;
        const int behind = (error * line.weights[x].behind) >> 16;
        std::int16_t &aside = line.aside[std::ptrdiff_t(x) - line.order.step(x)];
        aside = std::int16_t(aside + behind);
        line.down[x] = std::int16_t(error - ahead - behind);
    }
}

void add(std::int16_t *error, int more)
{
    *error = std::int16_t(*error + more);
}

/// Nothing is lost: what is left at the seam crosses it, and the sides of the row send all back.
void keepRest(const DiffusionLine &line, const Ends &ends)
{
    const RowOrder &order = line.order;
    const auto give = [&line](std::ptrdiff_t x, int share) { add(&line.aside[x], share); };
    if (order.seam > 0) {
        goOn(order.leftEnd(), 1, line.width, ends.left, give);
    }
    goOn(order.rightEnd(line.width), -1, line.width, ends.right, give);
    add(&line.down[0], line.aside[-1]);
    add(&line.down[line.width - 1], line.aside[line.width]);
}

} // namespace

RowOrder rowOrder(std::size_t row, std::size_t width)
{
    const std::size_t groups = width / kGroup;
    const std::size_t noise = kBlueNoise[row % kBlueNoiseSide][0];
    // Within an eighth of the width around the middle.
    const std::size_t seam = groups < 8 ? 0 : (groups * (512 - 128 + noise) + 512) / 1024;
    return {seam * kGroup, row % 2 == 0};
}

ErrorDiffusion::ErrorDiffusion(std::size_t width, const DiffusionTable &table)
    : mWidth(width)
    , mTable(table)
    , mTones(wholeGroups(width + 2 * kMargin), 255)
    , mDown(mTones.size())
    , mAside(mTones.size() + 2)
    , mSums(mTones.size())
    , mWeights(mTones.size())
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
    std::fill_n(mTones.begin() + std::ptrdiff_t(kMargin + mWidth), kMargin, grey[mWidth - 1]);
    diffuse(path);
    std::copy_n(mInk.begin() + kMargin / 8, (mWidth + 7) / 8, ink);
    // What is right of the page is not part of it.
    ink[(mWidth - 1) / 8] &= std::uint8_t(0xFF00U >> ((mWidth - 1) % 8 + 1));
}

void ErrorDiffusion::diffuse(ProcessorPath path)
{
    const std::size_t width = mWidth + 2 * kMargin;
    const DiffusionLine line{width,
                             rowOrder(mRow, width),
                             mTones.data(),
                             kBlueNoise[mRow % kBlueNoiseSide],
                             &mTable,
                             mDown.data(),
                             mAside.data() + 1,
                             mSums.data(),
                             mWeights.data(),
                             mInk.data()};
#if defined(__x86_64__)
    const bool vector = path != ProcessorPath::Plain;
    (vector ? gatherSse2 : gather)(line);
#else
    gather(line);
#endif
    const Ends ends = line.order.inward ? carryThrough<1>(line) : carryThrough<-1>(line);
#if defined(__x86_64__)
    (vector ? distributeSse2 : distribute)(line);
#else
    distribute(line);
#endif
    keepRest(line, ends);
    ++mRow;
}

} // namespace imaging
