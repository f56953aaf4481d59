// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1String>
#include <QString>

#include <optional>

namespace dialog {

/// The colours that a label printer prints with.
enum class ColourMode
{
    Black,
    BlackAndRed
};

/// The option of the PPD that chooses between them, and its two choices.
inline constexpr QLatin1String kColourOption("CvMultiColor");
inline constexpr QLatin1String kBlackChoice("CvMultiColorMonochrome");
inline constexpr QLatin1String kBlackAndRedChoice("CvMultiColorBlackRed");

/// Nothing for a choice of another name: only its driver knows what it means.
inline std::optional<ColourMode> colourModeOf(const std::optional<QString> &choice)
{
    if (choice == kBlackChoice) {
        return ColourMode::Black;
    }
    return choice == kBlackAndRedChoice ? std::optional(ColourMode::BlackAndRed) : std::nullopt;
}

} // namespace dialog
