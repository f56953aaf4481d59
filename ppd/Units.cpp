// SPDX-License-Identifier: Apache-2.0
#include "ppd/Units.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kInchesPerMillimetre = 0.0393701;
/// The first number beyond 64 bits with sign.
constexpr double kTwoTo63 = 9223372036854775808.0;

} // namespace

qint64 RoundDouble(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= kTwoTo63) {
        return std::numeric_limits<qint64>::max();
    }
    if (value < -kTwoTo63) {
        return std::numeric_limits<qint64>::min();
    }
    return std::llround(value);
}

double MiriToInch(double millimetres)
{
    return millimetres * kInchesPerMillimetre;
}

double InchToMiri(double inches)
{
    return inches / kInchesPerMillimetre;
}
