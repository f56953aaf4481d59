// SPDX-License-Identifier: Apache-2.0
#include "imaging/FixedPointMap.h"

#include <algorithm>
#include <cmath>

namespace imaging {
namespace {

constexpr int kLargest = 65535;

// How far from the rounded slope to look. With 32 every pair of the 41 brightness and contrast
// levels has its arithmetic, and about 999 of 1000 pairs of arbitrary values in their range.
constexpr int kReach = 32;

std::uint16_t cut(int value)
{
    return std::uint16_t(std::clamp(value, 0, kLargest));
}

int product(std::uint8_t value, std::uint16_t slope)
{
    return int((value * 256U * slope) >> 16);
}

/// The offsets with which a slope meets every entry of the table seen so far.
struct Offsets
{
    int lowest = -kLargest;
    int highest = kLargest;

    void narrow(int scaled, int entry, int shift)
    {
        if (entry > 0) {
            lowest = std::max(lowest, (entry << shift) - scaled);
        }
        if (entry < 255) {
            highest = std::min(highest, ((entry + 1) << shift) - 1 - scaled);
        }
    }

    bool none() const { return lowest > highest; }
};

std::optional<FixedPointMap> withSlope(const ToneTable &table, std::uint16_t slope, int shift)
{
    Offsets offsets;
    for (int value = 0; value < 256; ++value) {
        offsets.narrow(product(std::uint8_t(value), slope), table[std::size_t(value)], shift);
        if (offsets.none()) {
            return {};
        }
    }
    const int offset = std::clamp(0, offsets.lowest, offsets.highest);
    return FixedPointMap{slope, cut(offset), cut(-offset), std::uint16_t(shift)};
}

bool gives(const FixedPointMap &map, const ToneTable &table)
{
    for (std::size_t value = 0; value < table.size(); ++value) {
        if (map(std::uint8_t(value)) != table[value]) {
            return false;
        }
    }
    return true;
}

} // namespace

std::uint8_t FixedPointMap::operator()(std::uint8_t value) const
{
    const int sum = cut(cut(product(value, slope) + add) - subtract) >> shift;
    return std::uint8_t(std::min(sum, 255));
}

std::optional<FixedPointMap> fixedPointFor(const ToneTable &table, double slope)
{
    // One bit more of fraction where the product leaves room for it.
    const int shift = slope < 1.0 ? 8 : 7;
    const double scaled = slope * double(256 << shift);
    if (!(scaled >= 0.0 && scaled <= double(kLargest))) {
        return {};
    }
    const int middle = int(std::lround(scaled));
    for (int step = 0; step <= 2 * kReach; ++step) {
        const int candidate = middle + (step % 2 == 0 ? -step / 2 : (step + 1) / 2);
        if (candidate < 0 || candidate > kLargest) {
            continue;
        }
        const auto map = withSlope(table, std::uint16_t(candidate), shift);
        if (map && gives(*map, table)) {
            return map;
        }
    }
    return {};
}

} // namespace imaging
