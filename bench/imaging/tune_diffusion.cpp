// SPDX-License-Identifier: Apache-2.0
// tune_diffusion [TRIALS]: searches, for each key tone of imaging/DiffusionWeights.cpp, the weights
// that leave a flat area least uneven, and prints them beside the noise of those in use.
#include "imaging/Blur.h"

#include "imaging/ErrorDiffusion.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

constexpr std::size_t kSide = 256;
constexpr std::size_t kRowsBefore = 32;

constexpr int kKeyTones[] = {1,  2,  4,  8,  12, 16, 24,  32,  40,  48,
                             56, 64, 72, 80, 88, 96, 104, 112, 120, 127};

imaging::DiffusionTable flatTable(imaging::DiffusionWeights weights)
{
    imaging::DiffusionTable table;
    table.ahead.fill(weights.ahead);
    table.behind.fill(weights.behind);
    return table;
}

/// How uneven the tone looks from near and from far. Far counts more: it is what the eye sees.
double unevenness(int tone, const imaging::DiffusionTable &table)
{
    imaging::ErrorDiffusion diffusion(kSide, table);
    const std::vector<std::uint8_t> row(kSide, std::uint8_t(tone));
    std::vector<std::uint8_t> ink(kSide / 8);
    std::vector<float> printed;
    for (std::size_t y = 0; y < kRowsBefore + kSide; ++y) {
        diffusion.apply(row.data(), ink.data(), imaging::fastestPath());
        for (std::size_t x = 0; x < kSide && y >= kRowsBefore; ++x) {
            printed.push_back(((ink[x / 8] >> (7 - x % 8)) & 1) != 0 ? 0.0F : 255.0F);
        }
    }
    const std::vector<float> wanted(printed.size(), float(tone));
    return blurredDifference(printed, wanted, kSide, kSide, 1.5)
        + 2.0 * blurredDifference(printed, wanted, kSide, kSide, 3.0);
}

/// Of a tone and of its neighbours, so that a pattern that happens to fit one tone does not win.
double unevennessAround(int tone, const imaging::DiffusionTable &table)
{
    double sum = 0.0;
    for (const int near : {tone - 1, tone, tone + 1}) {
        sum += unevenness(std::clamp(near, 1, 254), table) / 3.0;
    }
    return sum;
}

struct Parts
{
    double ahead;
    double behind;

    imaging::DiffusionWeights weights() const
    {
        return {std::uint8_t(ahead * 128.0 + 0.5), std::uint8_t(behind * 128.0 + 0.5)};
    }
};

/// Steps at random around the best so far, smaller ones while none is better.
Parts search(int tone, int trials, std::mt19937 *random)
{
    std::normal_distribution<double> normal;
    Parts best{0.45, 0.3};
    double least = unevennessAround(tone, flatTable(best.weights()));
    double step = 0.1;
    for (int trial = 0; trial < trials; ++trial) {
        const double ahead = std::clamp(best.ahead + normal(*random) * step, 0.05, 0.65);
        const double behind =
            std::clamp(best.behind + normal(*random) * step, 0.0, std::min(0.45, 1.0 - ahead));
        const double found = unevennessAround(tone, flatTable(Parts{ahead, behind}.weights()));
        if (found < least) {
            least = found;
            best = {ahead, behind};
        } else {
            step = std::max(0.012, step * 0.97);
        }
    }
    return best;
}

} // namespace

int main(int argc, char **argv)
{
    const int trials = argc > 1 ? std::max(1, std::atoi(argv[1])) : 80;
    std::mt19937 random(1);
    for (const int tone : kKeyTones) {
        const Parts best = search(tone, trials, &random);
        std::printf("    {%d, %.3f, %.3f}, // %.2f, in use %.2f\n", tone, best.ahead, best.behind,
                    unevennessAround(tone, flatTable(best.weights())),
                    unevennessAround(tone, imaging::diffusionTable()));
        std::fflush(stdout);
    }
    return 0;
}
