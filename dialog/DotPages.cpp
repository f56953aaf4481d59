// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotPages.h"

#include "dialog/JobSettings.h"
#include "dialog/PpdRaster.h"

#include <utility>

namespace dialog {

std::optional<DotPages> DotPages::of(std::shared_ptr<const DocumentPages> document, ppd_file_t *ppd,
                                     const Sheet &sheet, const JobSettings &settings)
{
    const std::optional<DotForm> form = dotFormOf(ppd);
    if (!form) {
        return {};
    }
    DotPages dots{std::move(document), {}, sheet, settings.scaling(), *form};
    for (int page = 0; page < dots.document->pageCount(); ++page) {
        if (settings.pages().contains(quint32(page) + 1)) {
            dots.pages.push_back(page);
        }
    }
    return dots.pages.empty() ? std::nullopt : std::optional(dots);
}

} // namespace dialog
