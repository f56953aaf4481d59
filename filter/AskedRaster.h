// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <cups/ppd.h>
#include <cups/raster.h>

namespace filter {

/// The raster that a PPD asks of the filters before the printer's own one, while `choice` of
/// `option` is marked and every other option stands on its default. Both are empty for the
/// defaults alone.
struct AskedRaster
{
    std::string option;
    std::string choice;
    unsigned bitsPerColor = 0;
    cups_cspace_t colorSpace = CUPS_CSPACE_W;

    /// "Resolution=300dpi", or "the default" for the defaults alone.
    std::string name() const;
};

/// The raster of the defaults, then of each choice that has code of its own, as libcups works it
/// out for pdftoraster, gstoraster and imagetoraster. Leaves the defaults marked.
std::vector<AskedRaster> askedRasters(ppd_file_t *ppd);

} // namespace filter
