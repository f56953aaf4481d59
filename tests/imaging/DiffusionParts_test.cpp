// SPDX-License-Identifier: Apache-2.0
#include "imaging/DiffusionParts.h"

#include <gmock/gmock.h>

#include <vector>

using namespace imaging;

namespace {

/// How often each pixel of a row is come by, and which part does.
struct Visits
{
    explicit Visits(const RowParts &parts)
        : counts(parts.width)
        , part(parts.width)
    {
        for (std::size_t k = 0; k < kParts; ++k) {
            for (std::size_t turn = 0; turn < parts.turns; ++turn) {
                const std::ptrdiff_t from = parts.block(k, turn);
                for (std::ptrdiff_t x = from; x < from + std::ptrdiff_t(kBlock); ++x) {
                    if (x >= 0 && x < std::ptrdiff_t(parts.width)) {
                        EXPECT_FALSE(parts.isOutside(from));
                        ++counts[std::size_t(x)];
                        part[std::size_t(x)] = k;
                    }
                }
            }
        }
    }

    std::vector<int> counts;
    std::vector<std::size_t> part;
};

TEST(DiffusionParts, TakeEveryPixelOfTheRowOnce)
{
    for (const std::size_t page : {1U, 31U, 90U, 300U, 732U, 1200U, 5000U}) {
        const std::size_t width = widthWithMargins(page);
        for (std::size_t row = 0; row < 128; ++row) {
            const Visits visits(rowParts(row, width));
            ASSERT_THAT(visits.counts, testing::Each(1)) << page << ", row " << row;
        }
    }
}

TEST(DiffusionParts, GoInTheDirectionOfTheRow)
{
    for (std::size_t row = 0; row < 4; ++row) {
        const RowParts parts = rowParts(row, widthWithMargins(732));
        EXPECT_EQ(parts.rightward, row % 2 == 0);
        EXPECT_EQ(parts.block(3, 1) - parts.block(3, 0), parts.step() * std::ptrdiff_t(kBlock));
    }
}

TEST(DiffusionParts, TouchNothingFartherThanABlockBesideTheRow)
{
    for (const std::size_t page : {1U, 90U, 732U, 2000U}) {
        for (std::size_t row = 0; row < 128; ++row) {
            const RowParts parts = rowParts(row, widthWithMargins(page));
            for (std::size_t k = 0; k < kParts; ++k) {
                for (std::size_t turn = 0; turn < parts.turns; ++turn) {
                    const std::ptrdiff_t from = parts.block(k, turn);
                    if (!parts.isOutside(from)) {
                        ASSERT_GE(from, -std::ptrdiff_t(kBlock));
                        ASSERT_LE(from, std::ptrdiff_t(parts.width));
                    }
                }
            }
        }
    }
}

TEST(DiffusionParts, MeetEverywhereAboutEquallyOften)
{
    const std::size_t width = widthWithMargins(732);
    constexpr std::size_t kRows = 128 * 64;
    std::vector<double> meetings(width);
    for (std::size_t row = 0; row < kRows; ++row) {
        const RowParts parts = rowParts(row, width);
        for (std::size_t k = 1; k < kParts; ++k) {
            const std::ptrdiff_t x = parts.begin(k);
            if (x >= 0 && x < std::ptrdiff_t(width)) {
                meetings[std::size_t(x)] += 1.0;
            }
        }
    }
    const double usual = double(kRows) / double(rowParts(0, width).turns * kBlock);
    for (std::size_t x = 0; x < width; ++x) {
        EXPECT_NEAR(meetings[x], usual, usual * 0.25) << x;
    }
}

TEST(DiffusionParts, WhatIsLeftGoesOnWholeAndInsideTheRow)
{
    const std::size_t width = widthWithMargins(300);
    for (std::size_t row = 0; row < 2; ++row) {
        const RowParts parts = rowParts(row, width);
        for (const int rest : {-7, -2, 1, 9, 2040}) {
            for (const std::ptrdiff_t place : {parts.behindEnd(2), parts.behindRow()}) {
                std::vector<int> given(width);
                goOn(parts, place, rest,
                     [&given](std::ptrdiff_t x, int error) { given.at(std::size_t(x)) += error; });
                int sum = 0;
                for (const int error : given) {
                    sum += error;
                }
                EXPECT_EQ(sum, rest);
            }
        }
    }
}

} // namespace
