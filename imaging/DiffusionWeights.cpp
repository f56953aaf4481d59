// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionWeights.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace imaging {
namespace {

struct Key
{
    int tone;
    double ahead;
    double behind;
};

// Searched as bench/imaging/tune_diffusion does. Its very best for each tone leaves flat areas a
// little more even still, but from tone to tone it is too uneven for the soft edges of type.
constexpr Key kKeys[] = {
    {1, 0.65, 0.33},   {4, 0.60, 0.35},    {8, 0.57, 0.39},   {16, 0.488, 0.35}, {24, 0.41, 0.37},
    {32, 0.397, 0.40}, {44, 0.39, 0.327},  {56, 0.35, 0.28},  {64, 0.355, 0.31}, {85, 0.45, 0.2},
    {95, 0.417, 0.27}, {102, 0.49, 0.236}, {112, 0.45, 0.28}, {120, 0.48, 0.26}, {127, 0.38, 0.30},
};

std::uint16_t out65536(double part)
{
    return std::uint16_t(std::lround(part * 65536.0));
}

DiffusionWeights mixed(int tone)
{
    const Key *right = std::find_if(std::begin(kKeys), std::end(kKeys),
                                    [tone](const Key &key) { return key.tone >= tone; });
    const Key *left = right == std::begin(kKeys) ? right : right - 1;
    const double part =
        right == left ? 0.0 : double(tone - left->tone) / double(right->tone - left->tone);
    return {out65536(left->ahead + (right->ahead - left->ahead) * part),
            out65536(left->behind + (right->behind - left->behind) * part)};
}

DiffusionTable makeTable()
{
    DiffusionTable table{};
    for (int tone = 1; tone <= 127; ++tone) {
        table[std::size_t(tone)] = mixed(tone);
        table[std::size_t(255 - tone)] = table[std::size_t(tone)];
    }
    return table;
}

} // namespace

const DiffusionTable &diffusionTable()
{
    static const DiffusionTable table = makeTable();
    return table;
}

} // namespace imaging
