// SPDX-License-Identifier: Apache-2.0
#include "imaging/Tone.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using namespace imaging;

namespace {

/// Brightness is added, contrast spreads around the middle, cut once at the end.
int expectedTone(int value, int brightness, int contrast)
{
    const double brightened = double(value) / 255.0 + double(brightness) / 40.0;
    const double tone = (brightened - 0.5) * (1.0 + double(contrast) / 40.0) + 0.5;
    // The nudge decides exact halves upwards whatever the divisions lose.
    return int(std::floor(std::clamp(tone, 0.0, 1.0) * 255.0 + 0.5 + 1e-9));
}

/// Levels are kept as 32-bit fractions of 40; an exact half may fall on either side with them.
double distanceFromHalf(int value, int brightness, int contrast)
{
    const double tone =
        (double(value) + 255.0 * brightness / 40.0 - 127.5) * (40 + contrast) / 40.0;
    return std::abs(tone - std::round(tone));
}

TEST(Tone, IsThePreviewsArithmeticAtEveryPairOfLevels)
{
    int compared = 0;
    for (int brightness = -20; brightness <= 20; ++brightness) {
        for (int contrast = -20; contrast <= 20; ++contrast) {
            const ToneTable table = toneFilter(brightness, contrast).table();
            for (int value = 0; value < 256; ++value) {
                if (distanceFromHalf(value, brightness, contrast) > 1e-4) {
                    ASSERT_EQ(table[std::size_t(value)], expectedTone(value, brightness, contrast))
                        << value << " at levels " << brightness << ", " << contrast;
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 41 * 41 * 250);
}

TEST(Tone, NeverFallsAtAnyPairOfLevels)
{
    for (int brightness = -20; brightness <= 20; ++brightness) {
        for (int contrast = -20; contrast <= 20; ++contrast) {
            const ToneTable table = toneFilter(brightness, contrast).table();
            ASSERT_TRUE(std::is_sorted(table.begin(), table.end())) << brightness << contrast;
        }
    }
}

TEST(Tone, LevelZeroChangesNothing)
{
    const ToneTable table = toneFilter(0, 0).table();
    for (std::size_t value = 0; value < table.size(); ++value) {
        EXPECT_EQ(table[value], value);
    }
}

TEST(Tone, ALevelOutOfRangeIsTheNearestOne)
{
    EXPECT_EQ(toneFilter(1000, -1000).table(), toneFilter(20, -20).table());
    EXPECT_EQ(toneFilter(-21, 21).table(), toneFilter(-20, 20).table());
}

} // namespace
