// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CodeCheck.h"
#include "dialog/PrinterSetup.h"

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// How the first page of `document` would be printed with what is set up now; nothing for a printer
/// of which nobody knows how it makes its dots. The interface thread.
std::optional<PrintedPage> printedPageOf(PrinterSetup &setup,
                                         std::shared_ptr<const DocumentPages> document);

/// The pages of `ranges` that a document of `pageCount` pages has, counted from 0: from `first` to
/// the end, then those before it.
std::vector<int> pagesFrom(const PageRanges &ranges, int pageCount, int first);

} // namespace dialog
