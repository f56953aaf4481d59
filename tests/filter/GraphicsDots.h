// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/TestRaster.h"
#include "imaging/PagePreparation.h"

/// The dots of a page by the imaging library alone.
struct PageDots
{
    std::vector<std::uint8_t> black;
    std::vector<std::uint8_t> red;
};

inline PageDots dotsOf(const TestPage &page, const imaging::PageSettings &settings)
{
    const bool isGrey = page.header.cupsBitsPerPixel == 8;
    imaging::PagePreparation preparation(settings, page.header.cupsWidth,
                                         isGrey ? imaging::InputFormat::Gray8
                                                : imaging::InputFormat::Rgb24);
    PageDots dots;
    dots.black.resize(preparation.outputRowBytes() * page.header.cupsHeight);
    dots.red.resize(dots.black.size());
    if (!preparation.rows(page.rows, dots.black, dots.red)) {
        throw std::logic_error("the page is no whole number of rows");
    }
    return dots;
}
