// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/PageSettings.h"

#include <optional>
#include <string_view>

namespace imaging {

// What the choices of the panel's PPD options mean, by keyword. Nothing for a keyword that means
// nothing; letters count as they are written.

/// "Binary", "Dither" or "ErrorDiffusion", of CvHalftonePattern.
std::optional<HalftoneMethod> halftoneMethodOf(std::string_view choice);

/// "CvMultiColorMonochrome" or "CvMultiColorBlackRed", of CvMultiColor.
std::optional<ColorMode> colorModeOf(std::string_view choice);

/// "-20" to "20", of CvBrightness, CvContrast and CvRedLevel.
std::optional<int> levelOf(std::string_view choice);

} // namespace imaging
