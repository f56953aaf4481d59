// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotForm.h"

#include <optional>

#include <cups/ppd.h>
#include <cups/raster.h>

namespace dialog {

/// The header of a page of raster as the PPD's marked choices ask for it: size, resolution and what
/// else their code says. Nothing when libcups cannot work it out or the label has no size.
std::optional<cups_page_header2_t> pageHeaderOf(ppd_file_t *ppd);

/// The dots of a label with the marked choices of the panel's options. Nothing when the PPD has no
/// choice of a halftone, or no size or resolution to go by.
std::optional<DotForm> dotFormOf(ppd_file_t *ppd);

/// Whether the printer's queue runs the filter labelgraphics, which takes pages in 8 bits.
bool hasGraphicsFilter(ppd_file_t *ppd);

} // namespace dialog
