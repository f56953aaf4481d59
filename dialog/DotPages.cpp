// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotPages.h"

#include "dialog/JobSettings.h"
#include "dialog/PpdRaster.h"
#include "dialog/PrintedPages.h"

#include <utility>

namespace dialog {

std::optional<DotPages> DotPages::of(std::shared_ptr<const DocumentPages> document, ppd_file_t *ppd,
                                     const Sheet &sheet, const JobSettings &settings)
{
    const std::optional<DotForm> form = dotFormOf(ppd);
    if (!form) {
        return {};
    }
    const std::vector<int> pages = pagesFrom(settings.pages(), document->pageCount(), 0);
    const DotPages dots{std::move(document), pages, sheet, settings.scaling(), *form};
    return dots.pages.empty() ? std::nullopt : std::optional(dots);
}

} // namespace dialog
