// SPDX-License-Identifier: Apache-2.0
#include "imaging/SettingTexts.h"

#include <charconv>

namespace imaging {

std::optional<HalftoneMethod> halftoneMethodOf(std::string_view choice)
{
    if (choice == "Binary") {
        return HalftoneMethod::Binary;
    }
    if (choice == "Dither") {
        return HalftoneMethod::Dither;
    }
    if (choice == "ErrorDiffusion") {
        return HalftoneMethod::ErrorDiffusion;
    }
    return {};
}

std::optional<ColorMode> colorModeOf(std::string_view choice)
{
    if (choice == "CvMultiColorMonochrome") {
        return ColorMode::Monochrome;
    }
    if (choice == "CvMultiColorBlackRed") {
        return ColorMode::BlackRed;
    }
    return {};
}

std::optional<int> levelOf(std::string_view choice)
{
    const char *end = choice.data() + choice.size();
    int level = 0;
    const auto [rest, error] = std::from_chars(choice.data(), end, level);
    const bool isLevel =
        error == std::errc() && rest == end && level >= kLowestLevel && level <= kHighestLevel;
    return isLevel ? std::optional(level) : std::nullopt;
}

} // namespace imaging
