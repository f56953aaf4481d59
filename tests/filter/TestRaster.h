// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <cups/raster.h>

/// A page of raster: its header, and its rows one after the other.
struct TestPage
{
    cups_page_header2_t header{};
    std::vector<std::uint8_t> rows;
};

/// A page of so many pixels at random, from a fixed seed. The header has a value of its own in each
/// field that means nothing to the filter.
TestPage greyPage(unsigned width, unsigned height, unsigned seed = 1);
TestPage rgbPage(unsigned width, unsigned height, unsigned seed = 1);

/// A page of `bits`, colour space and order, all its colours at random.
TestPage pageOf(unsigned bits, cups_cspace_t space, unsigned colors, cups_order_t order,
                unsigned width, unsigned height);

/// The raster of the pages, as libcups writes it.
std::string rasterOf(const std::vector<TestPage> &pages, cups_mode_t mode = CUPS_RASTER_WRITE);

/// Writes a page of `rows` rows, all alike, into the open `file`.
void writeLongPage(int file, const TestPage &page, unsigned rows);

/// The pages of the raster, as libcups reads them; the last one may lack rows.
std::vector<TestPage> pagesOf(const std::string &raster);
