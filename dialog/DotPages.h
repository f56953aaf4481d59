// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotForm.h"
#include "dialog/SheetPixels.h"

#include <memory>
#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace dialog {

class JobSettings;

/// The pages of a document that one job prints, each on a label of dots. A value; any thread.
struct DotPages
{
    std::shared_ptr<const DocumentPages> document;
    /// Counted from 0, in rising order; at least one.
    std::vector<int> pages;
    Sheet sheet;
    Scaling scaling = Scaling::Fit;
    DotForm form;

    /// The label with page `page` of the document.
    SheetPixels pixels(int page) const { return {document, page, sheet, scaling, form}; }

    /// The pages of `document` that `settings` ask for, as the marks of `ppd` make dots of them.
    /// Nothing when the printer has no choice of a halftone.
    static std::optional<DotPages> of(std::shared_ptr<const DocumentPages> document,
                                      ppd_file_t *ppd, const Sheet &sheet,
                                      const JobSettings &settings);
};

} // namespace dialog
