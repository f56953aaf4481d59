// SPDX-License-Identifier: Apache-2.0
#include "imaging/BlueNoise.h"
#include "imaging/blue_noise/VoidAndCluster.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

using namespace imaging;

namespace {

/// Which places of a square are inked.
struct Tile
{
    std::size_t side;
    std::vector<double> ink;
};

Tile blueNoiseAt(int tone)
{
    Tile tile{kBlueNoiseSide, {}};
    for (const auto &row : kBlueNoise) {
        for (const std::uint8_t threshold : row) {
            tile.ink.push_back(tone < threshold ? 1.0 : 0.0);
        }
    }
    return tile;
}

/// The classic ordered matrix of 16 x 16, which shows a texture.
Tile bayerAt(int tone)
{
    Tile tile{kBlueNoiseSide, {}};
    for (std::size_t y = 0; y < tile.side; ++y) {
        for (std::size_t x = 0; x < tile.side; ++x) {
            std::size_t rank = 0;
            for (std::size_t bit = 0; bit < 4; ++bit) {
                const std::size_t column = (x >> bit) & 1;
                const std::size_t row = (y >> bit) & 1;
                rank = rank * 4 + ((column ^ row) * 2 + row);
            }
            tile.ink.push_back(tone < int(thresholdOfRank(rank, 256)) ? 1.0 : 0.0);
        }
    }
    return tile;
}

/// The strength of each pair of frequencies, by plain sums along rows, then along columns.
std::vector<double> spectrum(const Tile &tile)
{
    const std::size_t n = tile.side;
    std::vector<std::complex<double>> turns(n);
    for (std::size_t i = 0; i < n; ++i) {
        turns[i] = std::polar(1.0, -2.0 * std::numbers::pi * double(i) / double(n));
    }
    std::vector<std::complex<double>> rows(n * n);
    std::vector<double> power(n * n);
    for (std::size_t y = 0; y < n; ++y) {
        for (std::size_t u = 0; u < n; ++u) {
            for (std::size_t x = 0; x < n; ++x) {
                rows[y * n + u] += tile.ink[y * n + x] * turns[u * x % n];
            }
        }
    }
    for (std::size_t u = 0; u < n; ++u) {
        for (std::size_t v = 0; v < n; ++v) {
            std::complex<double> sum;
            for (std::size_t y = 0; y < n; ++y) {
                sum += rows[y * n + u] * turns[v * y % n];
            }
            power[v * n + u] = std::norm(sum);
        }
    }
    power[0] = 0.0;
    return power;
}

/// How much of all that varies is in one frequency. A texture that the eye finds is such a peak.
double largestPeak(const std::vector<double> &power)
{
    double sum = 0.0;
    for (const double value : power) {
        sum += value;
    }
    return *std::max_element(power.begin(), power.end()) / sum;
}

/// How much of all that varies is coarse: of a wave length above 8 places.
double coarsePart(const std::vector<double> &power)
{
    const auto n = int(kBlueNoiseSide);
    double coarse = 0.0;
    double sum = 0.0;
    for (int v = 0; v < n; ++v) {
        for (int u = 0; u < n; ++u) {
            const double value = power[std::size_t(v * n + u)];
            const int du = std::min(u, n - u);
            const int dv = std::min(v, n - v);
            sum += value;
            coarse += du * du + dv * dv < n / 8 * n / 8 ? value : 0.0;
        }
    }
    return coarse / sum;
}

TEST(BlueNoise, EveryRankStandsAtOnePlace)
{
    std::vector<std::uint16_t> ranks = voidAndClusterRanks(32);
    std::sort(ranks.begin(), ranks.end());
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        ASSERT_EQ(ranks[i], i);
    }
}

TEST(BlueNoise, TheMatrixIsWhatItsGeneratorMakes)
{
    const std::vector<std::uint16_t> ranks = voidAndClusterRanks(kBlueNoiseSide);
    for (std::size_t place = 0; place < ranks.size(); ++place) {
        ASSERT_EQ(kBlueNoise[place / kBlueNoiseSide][place % kBlueNoiseSide],
                  thresholdOfRank(ranks[place], ranks.size()));
    }
}

TEST(BlueNoise, EachToneInksItsShareOfThePlaces)
{
    const double places = double(kBlueNoiseSide * kBlueNoiseSide);
    for (int tone = 0; tone < 256; ++tone) {
        const Tile tile = blueNoiseAt(tone);
        const double inked = double(std::count(tile.ink.begin(), tile.ink.end(), 1.0));
        ASSERT_NEAR(inked, places * double(255 - tone) / 255.0, 1.0) << tone;
    }
}

TEST(BlueNoise, ShowsNoTextureWhereAnOrderedMatrixDoes)
{
    // Spread evenly, one of the 16384 frequencies would have 0.00006.
    for (const int tone : {16, 48, 80, 112, 128, 160, 200, 240}) {
        ASSERT_LT(largestPeak(spectrum(blueNoiseAt(tone))), 0.004) << tone;
        ASSERT_GT(largestPeak(spectrum(bayerAt(tone))), 0.05) << tone;
    }
}

TEST(BlueNoise, HasNoCoarseClumps)
{
    // White noise has as much there as there are such frequencies: pi * 16 * 16 of 16384, 4.9 %.
    for (const int tone : {32, 64, 96, 128, 160, 192, 224}) {
        EXPECT_LT(coarsePart(spectrum(blueNoiseAt(tone))), 0.006) << tone;
    }
}

} // namespace
