// SPDX-License-Identifier: Apache-2.0
#include "imaging/blue_noise/VoidAndCluster.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace imaging {
namespace {

constexpr int kReach = 7;

/// exp(-d * d / (2 * 1.5 * 1.5)) as a 32-bit fraction, for the squared distance 1; 1.5 is the width
/// that the method's author found best.
constexpr std::uint64_t kFallOff = 3439140958;

/// How much a dot is felt at a squared distance of up to 2 * kReach * kReach.
std::vector<std::int32_t> fallOff()
{
    std::vector<std::int32_t> weights;
    std::uint64_t weight = std::uint64_t(1) << 32;
    for (int squared = 0; squared <= 2 * kReach * kReach; ++squared) {
        weights.push_back(std::int32_t(weight >> 12));
        weight = (weight * kFallOff) >> 32;
    }
    return weights;
}

/// Dots on a torus, and for each place how crowded it is around.
class Pattern
{
public:
    explicit Pattern(std::size_t side)
        : mSide(int(side))
        , mDots(side * side, 0)
        , mCrowd(side * side, 0)
        , mFallOff(fallOff())
        , mEmptiest(side)
        , mFullest(side)
    {
        for (int y = 0; y < mSide; ++y) {
            searchRow(y);
        }
    }

    bool isDot(std::size_t place) const { return mDots[place] != 0; }

    void toggle(std::size_t place)
    {
        const int sign = isDot(place) ? -1 : 1;
        mDots[place] = sign > 0 ? 1 : 0;
        const int column = int(place) % mSide;
        const int row = int(place) / mSide;
        for (int dy = -kReach; dy <= kReach; ++dy) {
            const int y = wrapped(row + dy);
            for (int dx = -kReach; dx <= kReach; ++dx) {
                mCrowd[at(wrapped(column + dx), y)] +=
                    sign * mFallOff[std::size_t(dx * dx + dy * dy)];
            }
        }
        for (int dy = -kReach; dy <= kReach; ++dy) {
            searchRow(wrapped(row + dy));
        }
    }

    /// The dot with the most others around it.
    std::size_t tightestCluster() const
    {
        return std::max_element(mFullest.begin(), mFullest.end(), lessCrowded)->place;
    }

    /// The place without a dot that has the fewest dots around it.
    std::size_t largestVoid() const
    {
        return std::min_element(mEmptiest.begin(), mEmptiest.end(), lessCrowded)->place;
    }

private:
    struct Place
    {
        std::size_t place = 0;
        std::int64_t crowd = 0;
    };

    static bool lessCrowded(const Place &a, const Place &b) { return a.crowd < b.crowd; }

    int wrapped(int coordinate) const { return (coordinate + mSide) % mSide; }
    std::size_t at(int x, int y) const
    {
        return std::size_t(y) * std::size_t(mSide) + std::size_t(x);
    }

    /// Keeps each row's two candidates, so that a search looks at the rows and not at every place.
    void searchRow(int y)
    {
        Place emptiest{0, std::numeric_limits<std::int64_t>::max()};
        Place fullest{0, std::numeric_limits<std::int64_t>::min()};
        for (int x = 0; x < mSide; ++x) {
            const Place place{at(x, y), mCrowd[at(x, y)]};
            if (isDot(place.place)) {
                fullest = std::max(fullest, place, lessCrowded);
            } else {
                emptiest = std::min(emptiest, place, lessCrowded);
            }
        }
        mEmptiest[std::size_t(y)] = emptiest;
        mFullest[std::size_t(y)] = fullest;
    }

    int mSide;
    std::vector<std::uint8_t> mDots;
    std::vector<std::int64_t> mCrowd;
    std::vector<std::int32_t> mFallOff;
    std::vector<Place> mEmptiest;
    std::vector<Place> mFullest;
};

/// A tenth of the places, at random, evened out: the tightest cluster moves into the largest void
/// until that is where it came from.
std::size_t startEvenly(Pattern &pattern, std::size_t places)
{
    const std::size_t dots = places / 10;
    std::uint32_t random = 1;
    for (std::size_t i = 0; i < dots;) {
        random = random * 1664525U + 1013904223U;
        const std::size_t place = (random >> 8) % places;
        if (!pattern.isDot(place)) {
            pattern.toggle(place);
            ++i;
        }
    }
    for (;;) {
        const std::size_t cluster = pattern.tightestCluster();
        pattern.toggle(cluster);
        const std::size_t hole = pattern.largestVoid();
        pattern.toggle(hole);
        if (hole == cluster) {
            return dots;
        }
    }
}

} // namespace

std::vector<std::uint16_t> voidAndClusterRanks(std::size_t side)
{
    const std::size_t places = side * side;
    std::vector<std::uint16_t> ranks(places);
    Pattern start(side);
    const std::size_t dots = startEvenly(start, places);

    Pattern removing = start;
    for (std::size_t rank = dots; rank-- > 0;) {
        const std::size_t place = removing.tightestCluster();
        removing.toggle(place);
        ranks[place] = std::uint16_t(rank);
    }
    // Beyond the half the method looks for the tightest cluster of places without a dot: that is
    // the place with the fewest dots around it again.
    for (std::size_t rank = dots; rank < places; ++rank) {
        const std::size_t place = start.largestVoid();
        start.toggle(place);
        ranks[place] = std::uint16_t(rank);
    }
    return ranks;
}

} // namespace imaging
