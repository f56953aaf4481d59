// SPDX-License-Identifier: Apache-2.0
#include "imaging/Tone.h"

#include "imaging/PageSettings.h"

#include <algorithm>

namespace imaging {
namespace {

constexpr float kLevelsPerUnit = 40.0F;

float ofUnit(int level)
{
    return float(std::clamp(level, kLowestLevel, kHighestLevel)) / kLevelsPerUnit;
}

} // namespace

ColorControls toneFilter(int brightness, int contrast)
{
    return ColorControls({ofUnit(brightness), 1.0F}, {0.0F, 1.0F + ofUnit(contrast)});
}

} // namespace imaging
