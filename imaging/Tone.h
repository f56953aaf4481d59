// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/ColorControls.h"

namespace imaging {

/// Brightness and contrast as the panel's preview shows them, for levels of -20 .. +20: on tones
/// from 0 to 1, brightness / 40 is added, then contrast spreads them around the middle by
/// 1 + contrast / 40; they are cut to 0 .. 1 once, at the end. The table never falls.
ColorControls toneFilter(int brightness, int contrast);

} // namespace imaging
