// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintedPages.h"

#include "dialog/PpdRaster.h"

#include <algorithm>
#include <utility>

namespace dialog {

std::optional<PrintedPage> printedPageOf(PrinterSetup &setup,
                                         std::shared_ptr<const DocumentPages> document)
{
    if (!document || !setup.ppd() || setup.sheet().size.isEmpty()) {
        return {};
    }
    const std::optional<DotForm> form = dotFormOf(setup.ppd()->file());
    if (!form) {
        return {};
    }
    PrintedPage printed;
    printed.document = std::move(document);
    printed.sheet = setup.sheet();
    printed.scaling = setup.settings().scaling();
    printed.form = *form;
    // Other queues get the document itself, and know nothing of whole dots.
    printed.mayHaveWholeDots = printed.document->hasPixels()
        && (setup.printer().isFolder || hasGraphicsFilter(setup.ppd()->file()));
    return printed;
}

std::vector<int> pagesFrom(const PageRanges &ranges, int pageCount, int first)
{
    std::vector<int> pages;
    for (int page = 0; page < pageCount; ++page) {
        if (ranges.contains(quint32(page + 1))) {
            pages.push_back(page);
        }
    }
    const auto from = std::lower_bound(pages.begin(), pages.end(), first);
    std::rotate(pages.begin(), from, pages.end());
    return pages;
}

} // namespace dialog
