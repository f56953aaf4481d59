// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace imaging {

/// How grey becomes dots.
enum class HalftoneMethod
{
    Binary, ///< A dot where the tone is darker than the middle. For text and barcodes.
    Dither, ///< A fixed pattern of fine dots, each with its own threshold. Even, the same each
            ///< time.
    ErrorDiffusion ///< What a dot prints too much or too little goes to its neighbours. For
                   ///< pictures.
};

enum class ColorMode
{
    Monochrome,
    BlackRed ///< Each pixel is white, black or red.
};

/// What a pixel of the input is made of; 0 is black, 255 is white or full.
enum class InputFormat
{
    Gray8, ///< One byte.
    Rgb24 ///< Three bytes: red, green, blue.
};

/// The levels run from -20 to +20; one beyond counts as the nearest of them.
constexpr int kLowestLevel = -20;
constexpr int kHighestLevel = 20;

/// How a page is prepared; the defaults change no tone.
struct PageSettings
{
    HalftoneMethod method = HalftoneMethod::ErrorDiffusion;
    int brightness = 0;
    int contrast = 0;
    ColorMode colorMode = ColorMode::Monochrome;

    /// Moves the border between black and red: at -20 nothing is red, at +20 all that is reddish.
    /// What stays white does not depend on it. Without effect in Monochrome.
    int redLevel = 0;

    bool operator==(const PageSettings &other) const = default;
};

} // namespace imaging
