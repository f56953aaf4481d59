// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace filter {

/// The colours that the printer can print.
enum class Colours
{
    Black,
    BlackAndRed
};

/// What the lines of the added options depend on.
struct OptionSetup
{
    Colours colours = Colours::Black;
    int order = 10; ///< of the first added option; greater than the order of every other option
    std::vector<std::string> languages; ///< those of *cupsLanguages that need translations
};

/// The keywords of the six options, in the order in which they are added.
const std::vector<std::string> &graphicsOptionKeywords();

/// The lines that give a PPD the six options of the Graphics panel, the filter `labelgraphics`
/// before the printer's own filter, and a page in 8 bits for it. ASCII, and UTF-8 in the
/// translations; lines end in "\n".
std::string graphicsOptionLines(const OptionSetup &setup);

} // namespace filter
