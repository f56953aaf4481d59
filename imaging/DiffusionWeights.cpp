// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionWeights.h"

#include <algorithm>
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

// Found by bench/imaging/tune_diffusion; in between the weights are mixed of the two keys.
constexpr Key kKeys[] = {
    {1, 0.650, 0.290},   {2, 0.645, 0.325},   {4, 0.616, 0.305},   {8, 0.507, 0.340},
    {12, 0.469, 0.282},  {16, 0.458, 0.272},  {24, 0.396, 0.297},  {32, 0.380, 0.246},
    {40, 0.304, 0.207},  {48, 0.353, 0.291},  {56, 0.369, 0.326},  {64, 0.354, 0.297},
    {72, 0.270, 0.200},  {80, 0.450, 0.430},  {88, 0.405, 0.307},  {96, 0.394, 0.291},
    {104, 0.418, 0.292}, {112, 0.440, 0.284}, {120, 0.460, 0.270}, {127, 0.372, 0.305},
};

std::uint16_t out65536(double part)
{
    return std::uint16_t(part * 65536.0 + 0.5);
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
